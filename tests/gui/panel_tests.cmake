# Panel tests: the framework's promises over every registered panel type, then each panel family.
lumivox_add_test(NAME test_panel_framework SOURCES test_panel_framework.cpp test_panel_support.h
                 LIBS lumivox_panels LABELS gui panels)
if(EXISTS ${CMAKE_CURRENT_SOURCE_DIR}/test_panel_cw.cpp)
  lumivox_add_test(NAME test_panel_cw SOURCES test_panel_cw.cpp test_panel_support.h
                   LIBS lumivox_panels LABELS gui panels)
endif()
if(EXISTS ${CMAKE_CURRENT_SOURCE_DIR}/test_panel_high_power.cpp)
  lumivox_add_test(NAME test_panel_high_power SOURCES test_panel_high_power.cpp
                   test_panel_support.h LIBS lumivox_panels LABELS gui panels)
endif()

# Not a test: renders every panel to PNG files for a look by eye (see the file's header).
add_executable(render_panels render_panels.cpp)
target_link_libraries(render_panels PRIVATE lumivox_panels)
