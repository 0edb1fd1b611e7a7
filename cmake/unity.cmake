# With KW_UNITY the sources of a folder are compiled as one, since most of the time goes into the headers that they share:
# for ./run on a machine that has built nothing yet. Sources that do not go with the others of their folder, because names
# in their unnamed namespaces are the same, are compiled alone, and so are folders that are not listed.

# kw_unity(TARGET FOLDERS... [EXCEPT SOURCES...])
function(kw_unity target)
    if(NOT KW_UNITY)
        return()
    endif()
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "EXCEPT")
    set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
    # Names at the top of one source are hidden by locals of another one, and a source is a header to the joined one.
    target_compile_options(${target} PRIVATE -Wno-shadow -Wno-subobject-linkage)
    get_target_property(sources ${target} SOURCES)
    foreach(folder IN LISTS arg_UNPARSED_ARGUMENTS)
        foreach(source IN LISTS sources)
            cmake_path(GET source PARENT_PATH place)
            if((place STREQUAL folder OR (folder STREQUAL "." AND place STREQUAL "")) AND NOT source IN_LIST arg_EXCEPT)
                string(MAKE_C_IDENTIFIER "${folder}" group)
                set_source_files_properties("${source}" PROPERTIES UNITY_GROUP "${group}")
            endif()
        endforeach()
    endforeach()
endfunction()
