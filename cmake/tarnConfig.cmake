include("${CMAKE_CURRENT_LIST_DIR}/tarnTargets.cmake")

# find_package(tarn COMPONENTS host info): the targets tarn::host and tarn::info.
foreach(component IN LISTS tarn_FIND_COMPONENTS)
    if(NOT TARGET tarn::${component} AND tarn_FIND_REQUIRED_${component})
        set(tarn_FOUND FALSE)
        set(tarn_NOT_FOUND_MESSAGE "this libtarn was installed without tarn::${component}")
    endif()
endforeach()
