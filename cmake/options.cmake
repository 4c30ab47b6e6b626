# What every target is compiled with.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_C_STANDARD 11)
set(CMAKE_C_STANDARD_REQUIRED ON)
set(CMAKE_C_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

# -O3 would only make the library larger.
set(CMAKE_C_FLAGS_RELEASE "-O2 -DNDEBUG")
set(CMAKE_CXX_FLAGS_RELEASE "-O2 -DNDEBUG")

# Built for speed, functions of other shared objects are called through the table that the loader
# fills and not through a stub with an indirect jump of its own. Processors predict that better, and
# nothing is left to be looked up at a first call. The stubs are smaller, so -Os keeps them.
string(APPEND CMAKE_C_FLAGS_RELEASE " -fno-plt")
string(APPEND CMAKE_CXX_FLAGS_RELEASE " -fno-plt")

if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    set(CMAKE_BUILD_TYPE Release CACHE STRING "Kind of build" FORCE)
endif()

add_compile_options(-Wall -Wextra -Wconversion -Wshadow -Werror)

if(TARN_SANITIZE)
    add_compile_options(-fsanitize=${TARN_SANITIZE} -fno-sanitize-recover=all
                        -fno-omit-frame-pointer -g)
    add_link_options(-fsanitize=${TARN_SANITIZE})
endif()
if(TARN_COVERAGE)
    # Atomic, since some tests run threads: counters that lose an update contradict each other.
    add_compile_options(--coverage -fprofile-update=atomic -O0 -g)
    add_link_options(--coverage)
endif()
