# What the targets are compiled with. Nothing here goes beyond this directory.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_C_STANDARD 11)
set(CMAKE_C_STANDARD_REQUIRED ON)
set(CMAKE_C_EXTENSIONS OFF)
# A path of the build's own in a library would make two builds of one source differ.
set(CMAKE_BUILD_RPATH_USE_ORIGIN ON)

if(PROJECT_IS_TOP_LEVEL)
    set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
    if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
        set(CMAKE_BUILD_TYPE Release CACHE STRING "Kind of build" FORCE)
    endif()
endif()

# -O3 is what CMake takes where nobody has chosen; it would only make the library larger. Flags that
# somebody has chosen stay.
foreach(language C CXX)
    if(CMAKE_${language}_FLAGS_RELEASE STREQUAL "-O3 -DNDEBUG")
        set(CMAKE_${language}_FLAGS_RELEASE "-O2 -DNDEBUG")
    endif()
endforeach()

set(tarn_warnings -Wall -Wextra -Wconversion -Wshadow)
if(TARN_WERROR)
    list(APPEND tarn_warnings -Werror)
endif()

if(TARN_SANITIZE)
    add_compile_options(-fsanitize=${TARN_SANITIZE} -fno-sanitize-recover=all
                        -fno-omit-frame-pointer -g1)
    add_link_options(-fsanitize=${TARN_SANITIZE})
endif()
if(TARN_COVERAGE)
    # Atomic, since some tests run threads: counters that lose an update contradict each other.
    add_compile_options(--coverage -fprofile-update=atomic -O0 -g0)
    add_link_options(--coverage)
endif()

# Against overwritten return addresses and tables, where there is a system to take part.
set(tarn_hardening)
set(optimized $<CONFIG:Release,RelWithDebInfo,MinSizeRel>)
if(TARN_HAS_SYSTEM)
    if(CMAKE_SYSTEM_PROCESSOR MATCHES "^(x86_64|AMD64|i.86)$")
        list(APPEND tarn_hardening -fcf-protection)
    elseif(CMAKE_SYSTEM_PROCESSOR STREQUAL aarch64)
        list(APPEND tarn_hardening -mbranch-protection=standard)
    endif()
    # The sanitizers see more, and not through the checking functions of libc.
    if(NOT TARN_SANITIZE AND NOT TARN_COVERAGE
       AND NOT "${CMAKE_C_FLAGS} ${CMAKE_CXX_FLAGS}" MATCHES _FORTIFY_SOURCE)
        list(APPEND tarn_hardening $<${optimized}:-D_FORTIFY_SOURCE=2>)
    endif()
endif()

# The codec keeps no array on the stack, and pays up to 4 % for the protector where it makes objects
# (scripts/protector.sh counts).
set(TARN_UNPROTECTED tarn tarn_static CACHE STRING "Targets without a stack protector")

# tarn_ships(target): a library or program that users get.
function(tarn_ships target)
    target_compile_options(${target} PRIVATE
        ${tarn_warnings} ${tarn_hardening}
        -ffile-prefix-map=${PROJECT_SOURCE_DIR}/=
        # Functions of other shared objects are called through the table that the loader fills and
        # not through a stub with an indirect jump of its own, which processors predict less well.
        # The stubs are smaller, so builds for size keep them.
        $<$<CONFIG:Release,RelWithDebInfo>:-fno-plt>)
    if(target IN_LIST TARN_UNPROTECTED)
        target_compile_options(${target} PRIVATE -fno-stack-protector)
    elseif(TARN_HAS_SYSTEM)
        target_compile_options(${target} PRIVATE -fstack-protector-strong)
    endif()
    set_target_properties(${target} PROPERTIES
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON)
    if(TARN_HAS_SYSTEM)
        target_link_options(${target} PRIVATE LINKER:-z,relro,-z,now,-z,noexecstack)
    endif()
endfunction()
