# Panel tests: the framework's promises over every registered panel type, then each panel family.
lumivox_add_test(NAME test_panel_framework SOURCES test_panel_framework.cpp test_panel_support.h
                 LIBS lumivox_panels LABELS gui panels)
if(EXISTS ${CMAKE_CURRENT_SOURCE_DIR}/test_panel_cw.cpp)
  lumivox_add_test(NAME test_panel_cw SOURCES test_panel_cw.cpp test_panel_support.h
                   LIBS lumivox_panels LABELS gui panels)
endif()
