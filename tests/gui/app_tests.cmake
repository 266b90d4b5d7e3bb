# GUI tests of the application shell. Each window owns the serial link's thread and one thread per
# device, hence the label threads: the thread-sanitizer run executes them too.
lumivox_add_test(NAME test_main_window_config SOURCES test_main_window_config.cpp test_app_support.h
                 LIBS lumivox_app LABELS gui threads)
lumivox_add_test(NAME test_main_window_serial SOURCES test_main_window_serial.cpp test_app_support.h
                 LIBS lumivox_app LABELS gui threads)
lumivox_add_test(NAME test_main_window_shell SOURCES test_main_window_shell.cpp test_app_support.h
                 LIBS lumivox_app LABELS gui threads)
lumivox_add_test(NAME test_app_resources SOURCES test_app_resources.cpp
                 LIBS lumivox_resources Qt5::Gui LABELS gui)
