# SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
# SPDX-License-Identifier: MIT

function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${ARGN}\n${output}")
    endif()
endfunction()

function(run_consumer program)
    execute_process(COMMAND ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8 LD_LIBRARY_PATH=${prefix}/${libdir}
                    ${program} OUTPUT_VARIABLE output RESULT_VARIABLE result)
    if(NOT result EQUAL 0 OR NOT output STREQUAL "2 matches\nContains\n")
        message(FATAL_ERROR "${program} answered ${result} and said: ${output}")
    endif()
endfunction()

set(prefix ${work_dir}/prefix)
file(REMOVE_RECURSE ${work_dir})
run(${CMAKE_COMMAND} --install ${build_dir} --prefix ${prefix})

# A moved prefix must do as well.
file(RENAME ${prefix} ${work_dir}/moved)
set(prefix ${work_dir}/moved)

run(${CMAKE_COMMAND} -S ${consumer_dir} -B ${work_dir}/cmake -D CMAKE_PREFIX_PATH=${prefix}
    -D CMAKE_CXX_COMPILER=${compiler})
run(${CMAKE_COMMAND} --build ${work_dir}/cmake)
run_consumer(${work_dir}/cmake/consumer)

execute_process(COMMAND ${CMAKE_COMMAND} -E env PKG_CONFIG_PATH=${prefix}/${libdir}/pkgconfig
                pkg-config --cflags --libs zevglobalutils
                OUTPUT_VARIABLE flags OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
separate_arguments(flags UNIX_COMMAND "${flags}")
run(${compiler} -std=c++20 -fPIC ${consumer_dir}/main.cpp -o ${work_dir}/consumer ${flags})
run_consumer(${work_dir}/consumer)

file(GLOB_RECURSE headers ${prefix}/include/ZEVGlobalUtils/*.h)
foreach(header ${headers})
    file(STRINGS ${header} foreign REGEX "#include <(unicode/|glib|gio)|icu::")
    if(foreign OR header MATCHES "_p\\.h$")
        message(FATAL_ERROR "${header} has no place among the installed headers: ${foreign}")
    endif()
endforeach()
