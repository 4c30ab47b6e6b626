cmake_minimum_required(VERSION 3.25)

# Reads facts off the shared object LIBRARY with READELF and NM. EXPORTS is the list of names that
# it has to export; OPTIMIZED is false for a library compiled without optimization, COMPACT true for
# the compact form.
function(read_off variable)
    execute_process(COMMAND ${ARGN} OUTPUT_VARIABLE text ERROR_VARIABLE errors RESULT_VARIABLE result)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${ARGN} failed: ${errors}")
    endif()
    # Lists break at semicolons and brackets.
    string(REGEX REPLACE "[][;]" " " text "${text}")
    string(REPLACE "\n" ";" text "${text}")
    set(${variable} "${text}" PARENT_SCOPE)
endfunction()

# The first group of each line that matches.
function(pick variable pattern)
    set(found)
    foreach(line IN LISTS ARGN)
        if(line MATCHES "${pattern}")
            list(APPEND found "${CMAKE_MATCH_1}")
        endif()
    endforeach()
    list(SORT found)
    set(${variable} "${found}" PARENT_SCOPE)
endfunction()

function(expect_same what found expected)
    if(NOT found STREQUAL expected)
        set(surplus ${found})
        set(missing ${expected})
        list(REMOVE_ITEM surplus ${expected})
        list(REMOVE_ITEM missing ${found})
        message(SEND_ERROR "${what}: surplus '${surplus}', missing '${missing}'")
    endif()
endfunction()

# ---- What it is called and what it needs ---------------------------------------------------------

read_off(dynamic ${READELF} --dynamic --wide ${LIBRARY})
pick(soname "\\(SONAME\\).*: *([^ ]+)" ${dynamic})
expect_same("soname" "${soname}" "libtarn.so.0")
pick(needed "\\(NEEDED\\).*: *([^ ]+)" ${dynamic})
if(needed AND NOT needed MATCHES "^libc\\.so\\.[0-9]+$")
    message(SEND_ERROR "needs '${needed}', where only libc is allowed")
endif()
# Text relocations would make every process keep a copy of its own.
pick(text_relocations "(TEXTREL)" ${dynamic})
expect_same("text relocations" "${text_relocations}" "")

# ---- Names ---------------------------------------------------------------------------------------

read_off(defined ${NM} --dynamic --defined-only ${LIBRARY})
pick(exported "^[0-9a-fA-F]+ [A-Za-z] ([^@ ]+)" ${defined})
file(STRINGS ${EXPORTS} expected)
list(SORT expected)
expect_same("exported names" "${exported}" "${expected}")

read_off(undefined ${NM} --dynamic --undefined-only ${LIBRARY})
pick(wanted "^ +[A-Za-z] ([^@ ]+)" ${undefined})
# What a compiler may make of copying, filling and comparing.
list(REMOVE_ITEM wanted memcpy memmove memset memcmp)
expect_same("names wanted from the host" "${wanted}"
    "velAllocMemoryWithIds;velFreeMemoryWithIds;velSwFatalError;velSwTokenDebug;xVelDllAddToTail;xVelDllFindNode;xVelDllGetHead;xVelDllGetNext;xVelDllInitHead;xVelDllInitNode;xVelDllRemoveNode")

# ---- Sections ------------------------------------------------------------------------------------

# The flags, as in "WA", follow name, type, address, offset, size and entry size.
set(section "^ *[0-9]+ +([^ ]+) +[A-Z_0-9]+ +[0-9a-f]+ +[0-9a-f]+ +[0-9a-f]+ +[0-9a-f]+")
read_off(sections ${READELF} --section-headers --wide ${LIBRARY})
# Writable are the loader's own tables alone. So there is no variable, and hardly a constant that has
# to be relocated: the catalogue stays in pages that all processes share.
pick(writable "${section} +[A-Z]*W" ${sections})
list(REMOVE_ITEM writable .dynamic .got .got.plt)
# Some compilers keep offsets in .data.rel.ro, and built for speed, the addresses of the modules' three
# names stand there. Nothing else than these and calls is for the loader to relocate.
read_off(relocations ${READELF} --relocs --wide ${LIBRARY})
pick(relocated "(_RELATIVE|_ABS|_64 )" ${relocations})
list(LENGTH relocated count)
if(count EQUAL 0 OR (NOT COMPACT AND count EQUAL 3))
    list(REMOVE_ITEM writable .data.rel.ro)
endif()
if(NOT OPTIMIZED)
    # Without optimization a compiler may copy arguments from nameless templates there.
    list(REMOVE_ITEM writable .data)
    read_off(symbols ${NM} ${LIBRARY})
    pick(variables "^[0-9a-fA-F]+ [bBcCdDgGsS] ([^ ]+)" ${symbols})
    list(REMOVE_ITEM variables _DYNAMIC _GLOBAL_OFFSET_TABLE_ __bss_start _edata _end)
    expect_same("variables" "${variables}" "")
endif()
expect_same("writable sections" "${writable}" "")
pick(constants "${section} +A " ${sections})
if(NOT ".rodata" IN_LIST constants)
    message(SEND_ERROR "no .rodata among '${constants}', where the catalogue should be")
endif()
# A fatal-error report may throw or jump through the library's frames.
pick(unwind_tables "^ *[0-9]+ +(\\.eh_frame|\\.ARM\\.exidx) +[A-Z_0-9]+ +[0-9a-f]+ +[0-9a-f]+ +0*[1-9a-f]"
    ${sections})
if(NOT unwind_tables)
    message(SEND_ERROR "no unwind tables")
endif()
