# Where things go when they are installed: headers below include/tarn/, a pkg-config file for each
# library, and a CMake package. All of it finds its parts from where it stands itself, so that a
# prefix can be chosen at the time of installing, or moved later.
if(NOT TARN_INSTALL)
    function(tarn_installs)
    endfunction()
    function(tarn_installs_headers)
    endfunction()
    function(tarn_installs_program)
    endfunction()
    function(tarn_installs_pc)
    endfunction()
    return()
endif()

include(GNUInstallDirs)
include(CMakePackageConfigHelpers)
set(tarn_headers ${CMAKE_INSTALL_INCLUDEDIR}/tarn)
set(tarn_package ${CMAKE_INSTALL_LIBDIR}/cmake/tarn)

# tarn_installs(target): a library, and tarn::<its export name> in the CMake package.
function(tarn_installs target)
    install(TARGETS ${target} EXPORT tarn INCLUDES DESTINATION ${tarn_headers})
endfunction()

# tarn_installs_program(target): it finds our libraries wherever the two directories lie together.
function(tarn_installs_program target)
    if(IS_ABSOLUTE "${CMAKE_INSTALL_LIBDIR}")
        set(way ${CMAKE_INSTALL_LIBDIR})
    else()
        file(RELATIVE_PATH way ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
        string(PREPEND way $ORIGIN/)
    endif()
    set_target_properties(${target} PROPERTIES INSTALL_RPATH ${way})
    install(TARGETS ${target})
endfunction()

function(tarn_installs_headers)
    install(FILES ${ARGN} DESTINATION ${tarn_headers})
endfunction()

# tarn_installs_pc(name): cmake/<name>.pc.in. Where it lies against the headers is known for certain
# when it is installed.
function(tarn_installs_pc name)
    set(script ${CMAKE_CURRENT_BINARY_DIR}/install_${name}_pc.cmake)
    configure_file(${PROJECT_SOURCE_DIR}/cmake/install_pc.cmake.in ${script} @ONLY)
    install(SCRIPT ${script})
endfunction()

install(EXPORT tarn NAMESPACE tarn:: FILE tarnTargets.cmake DESTINATION ${tarn_package})
write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/tarnConfigVersion.cmake
                                 COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_SOURCE_DIR}/cmake/tarnConfig.cmake
              ${CMAKE_CURRENT_BINARY_DIR}/tarnConfigVersion.cmake
        DESTINATION ${tarn_package})

install(FILES ${PROJECT_SOURCE_DIR}/man/libtarn.3 ${PROJECT_SOURCE_DIR}/man/libtarn_host.3
        DESTINATION ${CMAKE_INSTALL_MANDIR}/man3)
if(TARN_TOOLS)
    install(FILES ${PROJECT_SOURCE_DIR}/man/tarn.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
    install(FILES ${PROJECT_SOURCE_DIR}/completion/tarn.bash RENAME tarn
            DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions)
    install(FILES ${PROJECT_SOURCE_DIR}/completion/_tarn
            DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/site-functions)
endif()
