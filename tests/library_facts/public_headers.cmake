cmake_minimum_required(VERSION 3.25)

# Compiles each public header alone: COMPILER, LANGUAGE (c or c++), OPTIONS, ROOT of the tree.
file(GLOB headers ${ROOT}/include/*.h ${ROOT}/platform/*.h ${ROOT}/host/include/*.h
     ${ROOT}/info/include/*.h)
if(LANGUAGE STREQUAL c++)
    file(GLOB cpp_headers ${ROOT}/include/*.hpp)
    list(APPEND headers ${cpp_headers})
endif()
list(LENGTH headers count)
if(count LESS 8)
    message(FATAL_ERROR "only ${count} public headers found below ${ROOT}")
endif()
foreach(header IN LISTS headers)
    execute_process(
        COMMAND ${COMPILER} ${OPTIONS} -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror -fsyntax-only -x ${LANGUAGE}
            -I ${ROOT}/include -I ${ROOT}/platform -I ${ROOT}/host/include
            -I ${ROOT}/info/include ${header}
        RESULT_VARIABLE result ERROR_VARIABLE errors)
    if(NOT result EQUAL 0)
        message(SEND_ERROR "${header} does not compile alone:\n${errors}")
    endif()
endforeach()
