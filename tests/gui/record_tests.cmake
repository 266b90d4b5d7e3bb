# Recording and trends, with the command line that switches them on. The recorder writes from a
# thread of its own, hence the label threads.
lumivox_add_test(NAME test_recorder SOURCES test_recorder.cpp test_app_support.h test_panel_support.h
                 LIBS lumivox_app LABELS gui threads)
