include(${CMAKE_CURRENT_LIST_DIR}/MarlOglTargets.cmake)
