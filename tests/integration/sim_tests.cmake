# The device-bus simulator against the frame codec and what the panels read, its line and program,
# and the comm stack against the simulator over a pseudo-terminal.
lumivox_add_test(NAME test_sim_devices SOURCES ${CMAKE_CURRENT_LIST_DIR}/test_sim_devices.cpp
                 LIBS lumivox_sim lumivox_panels LABELS integration sim)
lumivox_add_test(NAME test_sim_line SOURCES ${CMAKE_CURRENT_LIST_DIR}/test_sim_line.cpp
                 LIBS lumivox_sim LABELS integration sim)
target_compile_definitions(test_sim_line PRIVATE
                           LUMIVOX_SIM_EXE="$<TARGET_FILE:lumivox-sim>")
add_dependencies(test_sim_line lumivox-sim)
lumivox_add_test(NAME test_comm_sim SOURCES ${CMAKE_CURRENT_LIST_DIR}/test_comm_sim.cpp
                 LIBS lumivox_sim lumivox_comm LABELS integration sim threads)
