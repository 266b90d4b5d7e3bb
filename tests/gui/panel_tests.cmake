# Panel tests: the framework's promises over every registered panel type, then each panel family.
foreach(area framework cw accessory picosecond nanosecond high_power)
  if(EXISTS ${CMAKE_CURRENT_SOURCE_DIR}/test_panel_${area}.cpp)
    lumivox_add_test(NAME test_panel_${area} SOURCES test_panel_${area}.cpp test_panel_support.h
                     LIBS lumivox_panels LABELS gui panels)
  endif()
endforeach()
