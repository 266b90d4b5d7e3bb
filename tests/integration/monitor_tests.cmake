# The bus monitor on a simulated session, its logs read by can-utils' log2asc, and their replay
# by lumivox-sim.
lumivox_add_test(NAME test_monitor SOURCES ${CMAKE_CURRENT_LIST_DIR}/test_monitor.cpp
                 LIBS lumivox_app lumivox_sim LABELS integration gui threads)
target_compile_definitions(test_monitor PRIVATE LUMIVOX_SIM_EXE="$<TARGET_FILE:lumivox-sim>")
add_dependencies(test_monitor lumivox-sim)
