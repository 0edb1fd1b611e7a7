# How the project is installed: folders, sonames, headers, the packages that others find it by, and how it is taken away.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

# The soname moves whenever a host must be compiled anew. Records are public, so every field that comes, goes or moves
# changes it: before 1.0 that may be in any minor version, from then on in a major one only. docs/installing.md says it to
# hosts' authors.
if(PROJECT_VERSION_MAJOR EQUAL 0)
    set(KW_SOVERSION "${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR}")
else()
    set(KW_SOVERSION "${PROJECT_VERSION_MAJOR}")
endif()

# An installed program finds the libraries beside it, wherever it was installed; below /usr the loader knows the folders.
if(NOT CMAKE_INSTALL_PREFIX STREQUAL "/usr")
    file(RELATIVE_PATH kw_to_libraries "/${CMAKE_INSTALL_BINDIR}" "/${CMAKE_INSTALL_LIBDIR}")
    set(CMAKE_INSTALL_RPATH "$ORIGIN/${kw_to_libraries};$ORIGIN")
endif()

# kw_install_library(TARGET NAME): as kwgantt::NAME, and with a host's view of its headers in this build too.
function(kw_install_library target name)
    set_target_properties(${target} PROPERTIES
        VERSION ${PROJECT_VERSION} SOVERSION ${KW_SOVERSION} EXPORT_NAME ${name})
    target_link_options(${target} PRIVATE -Wl,-Bsymbolic-functions)
    add_library(kwgantt::${name} ALIAS ${target})
    install(TARGETS ${target} EXPORT kwganttTargets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT development
        INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
    add_dependencies(${target} kwgantt_headers)
endfunction()

# kw_stage_headers(): the target kwgantt_headers lays the headers out as they are installed, in include/kwgantt.
function(kw_stage_headers)
    include("${PROJECT_SOURCE_DIR}/cmake/publicheaders.cmake")
    set(kw_roots "${PROJECT_SOURCE_DIR}/src")
    list(TRANSFORM kw_module_headers PREPEND "${PROJECT_SOURCE_DIR}/src/" OUTPUT_VARIABLE headers)
    foreach(part base graphics)
        string(TOUPPER ${part} PART)
        if(NOT KW_${PART}_LIBRARY)
            list(APPEND kw_roots "${PROJECT_SOURCE_DIR}/${part}")
            list(TRANSFORM kw_${part}_headers PREPEND "${PROJECT_SOURCE_DIR}/${part}/")
            list(APPEND headers ${kw_${part}_headers})
        endif()
    endforeach()
    set(out "${PROJECT_BINARY_DIR}/include/kwgantt")
    set(script "${PROJECT_SOURCE_DIR}/cmake/stageheaders.cmake")
    configure_file("${PROJECT_SOURCE_DIR}/cmake/version.h.in" "${out}/version.h" @ONLY)
    file(CONFIGURE OUTPUT "${PROJECT_BINARY_DIR}/headerlists.cmake" @ONLY CONTENT [[
set(headers "@headers@")
set(ROOTS "@kw_roots@")
set(umbrella "@PROJECT_SOURCE_DIR@/src")
]])
    # Any header may be among those that the public ones include.
    file(GLOB_RECURSE sources "${PROJECT_SOURCE_DIR}/src/*.h" "${PROJECT_SOURCE_DIR}/base/*.h"
        "${PROJECT_SOURCE_DIR}/graphics/*.h")
    add_custom_command(OUTPUT "${PROJECT_BINARY_DIR}/headers.stamp"
        COMMAND ${CMAKE_COMMAND} "-DOUT=${out}" "-DLISTS=${PROJECT_BINARY_DIR}/headerlists.cmake" -P "${script}"
        COMMAND ${CMAKE_COMMAND} -E touch "${PROJECT_BINARY_DIR}/headers.stamp"
        DEPENDS ${sources} "${script}" "${PROJECT_BINARY_DIR}/headerlists.cmake"
        COMMENT "Laying out the headers for hosts" VERBATIM)
    add_custom_target(kwgantt_headers DEPENDS "${PROJECT_BINARY_DIR}/headers.stamp")
    install(DIRECTORY "${out}" DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development)
    set(KW_PUBLIC_HEADERS ${headers} PARENT_SCOPE)
endfunction()

# kw_install_pkgconfig(NAME LIBRARY DESCRIPTION REQUIRES [MORE_LIBS])
function(kw_install_pkgconfig KW_PC_NAME KW_PC_LIBRARY KW_PC_DESCRIPTION KW_PC_REQUIRES)
    set(KW_PC_MORE_LIBS "${ARGN}")
    file(RELATIVE_PATH KW_PC_TO_PREFIX "/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/")
    configure_file("${PROJECT_SOURCE_DIR}/cmake/kwgantt.pc.in" "${PROJECT_BINARY_DIR}/${KW_PC_NAME}.pc" @ONLY)
    install(FILES "${PROJECT_BINARY_DIR}/${KW_PC_NAME}.pc" DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
        COMPONENT development)
endfunction()

# kw_install_package(): what find_package(kwgantt) and pkg-config find, and the target "uninstall".
function(kw_install_package)
    set(KW_PACKAGE_SUITE "")
    set(requires "")
    set(more_libs "")
    foreach(part_target base.kwbasecore graphics.kwgraphics)
        string(REPLACE "." ";" both ${part_target})
        list(GET both 0 part)
        list(GET both 1 target)
        string(TOUPPER ${part} PART)
        if(KW_${PART}_LIBRARY)
            # A library of the suite is not ours to install: the package refers to where it stood, and a host can say
            # otherwise.
            set(library "${KW_${PART}_LIBRARY}")
            set(include_dir "${KW_${PART}_INCLUDE_DIR}")
            string(CONFIGURE [[
set(KW_@PART@_LIBRARY "@library@" CACHE FILEPATH "The suite's @part@ library")
set(KW_@PART@_INCLUDE_DIR "@include_dir@" CACHE PATH "Headers that belong to KW_@PART@_LIBRARY")
if(NOT TARGET @target@)
    add_library(@target@ SHARED IMPORTED)
    set_target_properties(@target@ PROPERTIES
        IMPORTED_LOCATION "${KW_@PART@_LIBRARY}" INTERFACE_INCLUDE_DIRECTORIES "${KW_@PART@_INCLUDE_DIR}")
    add_library(kwgantt::@part@ ALIAS @target@)
endif()
]] code @ONLY)
            string(APPEND KW_PACKAGE_SUITE "${code}")
            string(APPEND more_libs " ${library}")
        else()
            kw_install_pkgconfig(kwgantt-${part} ${target} "The ${part} library of kwgantt" "Qt5Core Qt5Gui Qt5Xml")
            string(APPEND requires "kwgantt-${part} ")
        endif()
    endforeach()
    kw_install_pkgconfig(kwgantt kwganttmodule "${PROJECT_DESCRIPTION}" "${requires}Qt5Core Qt5Gui Qt5Xml" ${more_libs})
    set(folder ${CMAKE_INSTALL_LIBDIR}/cmake/kwgantt)
    configure_package_config_file("${PROJECT_SOURCE_DIR}/cmake/kwganttConfig.cmake.in"
        "${PROJECT_BINARY_DIR}/kwganttConfig.cmake" INSTALL_DESTINATION ${folder})
    # Before 1.0 each minor version may change what a host sees.
    set(compatibility SameMajorVersion)
    if(PROJECT_VERSION_MAJOR EQUAL 0)
        set(compatibility SameMinorVersion)
    endif()
    write_basic_package_version_file("${PROJECT_BINARY_DIR}/kwganttConfigVersion.cmake"
        COMPATIBILITY ${compatibility})
    install(FILES "${PROJECT_BINARY_DIR}/kwganttConfig.cmake" "${PROJECT_BINARY_DIR}/kwganttConfigVersion.cmake"
        DESTINATION ${folder} COMPONENT development)
    install(EXPORT kwganttTargets NAMESPACE kwgantt:: DESTINATION ${folder} COMPONENT development)
    add_custom_target(uninstall VERBATIM
        COMMAND ${CMAKE_COMMAND} "-DBUILD=${PROJECT_BINARY_DIR}" -P "${PROJECT_SOURCE_DIR}/cmake/uninstall.cmake")
endfunction()
