# clang-tidy over every file that is compiled, and cppcheck over the sources. clang-tidy takes minutes: it sees a
# file again only when its object file, so the file or a header that it includes, is newer.
find_program(CLANG_TIDY clang-tidy REQUIRED)
find_program(CPPCHECK cppcheck REQUIRED)

function(tidy_folder folder)
    get_property(targets DIRECTORY ${folder} PROPERTY BUILDSYSTEM_TARGETS)
    get_property(objects DIRECTORY ${folder} PROPERTY BINARY_DIR)
    foreach(target IN LISTS targets)
        get_target_property(sources ${target} SOURCES)
        list(FILTER sources INCLUDE REGEX "^[^$/].*\\.cpp$")
        foreach(source IN LISTS sources)
            set(stamp ${CMAKE_BINARY_DIR}/clang-tidy/${target}/${source}.checked)
            add_custom_command(OUTPUT ${stamp} VERBATIM
                DEPENDS ${objects}/CMakeFiles/${target}.dir/${source}.o ${PROJECT_SOURCE_DIR}/.clang-tidy
                COMMAND ${CLANG_TIDY} -p ${CMAKE_BINARY_DIR} --quiet ${folder}/${source}
                COMMAND ${CMAKE_COMMAND} -E touch ${stamp})
            set_property(GLOBAL APPEND PROPERTY tidy_stamps ${stamp})
        endforeach()
    endforeach()
    get_property(folders DIRECTORY ${folder} PROPERTY SUBDIRECTORIES)
    foreach(inner IN LISTS folders)
        tidy_folder(${inner})
    endforeach()
endfunction()
tidy_folder(${PROJECT_SOURCE_DIR}/src)
tidy_folder(${PROJECT_SOURCE_DIR}/tests)
get_property(tidy_stamps GLOBAL PROPERTY tidy_stamps)
add_custom_target(clang-tidy DEPENDS ${tidy_stamps})
add_test(NAME clang-tidy COMMAND ${CMAKE_COMMAND} --build ${CMAKE_BINARY_DIR} --target clang-tidy -- -k 0)
set_tests_properties(clang-tidy PROPERTIES PROCESSORS 2)

add_test(NAME cppcheck WORKING_DIRECTORY ${PROJECT_SOURCE_DIR}
    COMMAND ${CPPCHECK} --quiet --inline-suppr --error-exitcode=1 --std=c++20 --library=qt --suppressions-list=tests/cppcheck-suppressions.txt
        --enable=warning,style,performance,portability -I src src tests)
