include(${CMAKE_CURRENT_LIST_DIR}/KelvoTargets.cmake)
