# What is installed, and the packages that CPack makes of it: .deb on Linux (MarlOgl, its viewer, its checker and its
# library), a .zip on Windows.
include(GNUInstallDirs)
if(WIN32)
    set(programs .)
    set(documents .)
else()
    set(programs ${CMAKE_INSTALL_BINDIR})
    set(documents ${CMAKE_INSTALL_DATAROOTDIR}/doc/marlogl)
endif()

install(TARGETS MarlOgl RUNTIME DESTINATION ${programs} COMPONENT converter)
if(TARGET marlogl-check)
    if(WIN32)
        set(check_component converter) # one .zip holds all
    else()
        set(check_component check)
    endif()
    install(TARGETS marlogl-check RUNTIME DESTINATION ${programs} COMPONENT ${check_component})
endif()
install(FILES README.md DESTINATION ${documents} COMPONENT converter)
if(WIN32)
    install(FILES LICENSE DESTINATION ${documents} COMPONENT converter) # elsewhere the copyright file holds it
else()
    install(FILES packaging/lintian-overrides DESTINATION share/lintian/overrides RENAME marlogl COMPONENT converter)
endif()
install(DIRECTORY docs DESTINATION ${documents} COMPONENT converter)
# The conversions that somebody made of the examples stay where they are.
install(DIRECTORY examples DESTINATION ${documents} COMPONENT converter
    PATTERN *.ogl EXCLUDE PATTERN *.png EXCLUDE PATTERN *.glb EXCLUDE PATTERN tempofil.* EXCLUDE PATTERN *.py EXCLUDE)

set(CPACK_COMPONENTS_ALL converter)
if(NOT WIN32)
    list(APPEND CPACK_COMPONENTS_ALL library)
    set(manuals MarlOgl.1)
    if(TARGET marlogl-preview)
        list(APPEND manuals marlogl-preview.1)
        list(APPEND CPACK_COMPONENTS_ALL preview)
    endif()
    if(TARGET marlogl-check)
        list(APPEND manuals marlogl-check.1)
        list(APPEND CPACK_COMPONENTS_ALL check)
    endif()

    # Compressed as Debian wants them, where gzip is at hand.
    find_program(GZIP gzip)
    set(texts packaging)
    if(GZIP)
        set(texts ${PROJECT_BINARY_DIR}/packaging)
        set(ending .gz)
        file(MAKE_DIRECTORY ${texts})
        foreach(text IN ITEMS ${manuals} changelog)
            add_custom_command(OUTPUT ${texts}/${text}.gz
                COMMAND ${GZIP} -9nc ${PROJECT_SOURCE_DIR}/packaging/${text} > ${texts}/${text}.gz
                DEPENDS ${PROJECT_SOURCE_DIR}/packaging/${text} VERBATIM)
            list(APPEND compressed ${texts}/${text}.gz)
        endforeach()
        add_custom_target(marlogl_texts ALL DEPENDS ${compressed})
    endif()

    # Man page, copyright and changelog, where Debian wants them.
    function(install_debian_files package component manual)
        install(FILES ${texts}/${manual}${ending} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT ${component})
        install(FILES packaging/copyright ${texts}/changelog${ending}
            DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/doc/${package} COMPONENT ${component})
    endfunction()
    install_debian_files(marlogl converter MarlOgl.1)
    install(FILES packaging/copyright ${texts}/changelog${ending}
        DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/doc/libmarlogl-dev COMPONENT library)
    if(TARGET marlogl-preview)
        install_debian_files(marlogl-preview preview marlogl-preview.1)
    endif()
    if(TARGET marlogl-check)
        install_debian_files(marlogl-check check marlogl-check.1)
    endif()
endif()

set(CPACK_PACKAGE_NAME marlogl)
set(CPACK_PACKAGE_VENDOR "MarlOgl developers")
set(CPACK_PACKAGE_CONTACT "MarlOgl developers <marlogl@example.org>")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "") # each package has its own
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
# With SOURCE_DATE_EPOCH the packages are the same bytes from every build.
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/same_times.cmake)
set(CPACK_POST_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/same_zip.cmake)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_CONVERTER_PACKAGE_NAME marlogl)
set(CPACK_DEBIAN_CONVERTER_PACKAGE_SUGGESTS "marlogl-preview, marlogl-check")
set(CPACK_DEBIAN_CONVERTER_DESCRIPTION "converter of scenery design files into OpenGL statements
MarlOgl reads a design file, which describes a scene as parametric objects
(houses, roofs, towers, roads, trees), and writes one text file of OpenGL
immediate-mode statements, which a rendering program includes.")
set(CPACK_DEBIAN_LIBRARY_PACKAGE_NAME libmarlogl-dev)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SUGGESTS marlogl)
set(CPACK_DEBIAN_LIBRARY_DESCRIPTION "converter of scenery design files, as a library
The converter of MarlOgl for programs of one's own: a static library, its
headers and a package for CMake. The documents are those of marlogl.")
set(CPACK_DEBIAN_PREVIEW_PACKAGE_NAME marlogl-preview)
set(CPACK_DEBIAN_PREVIEW_PACKAGE_DEPENDS libgl1-mesa-dri)
set(CPACK_DEBIAN_PREVIEW_PACKAGE_SUGGESTS marlogl)
set(CPACK_DEBIAN_PREVIEW_DESCRIPTION "viewer of the scenes that MarlOgl writes
marlogl-preview shows a design file, or the OpenGL statements that MarlOgl
made of it: in a window, or as a PNG picture, for which it needs no display.")
set(CPACK_DEBIAN_CHECK_PACKAGE_NAME marlogl-check)
set(CPACK_DEBIAN_CHECK_PACKAGE_SUGGESTS marlogl)
set(CPACK_DEBIAN_CHECK_DESCRIPTION "checker of scenery design files
marlogl-check tells what MarlOgl will not do with a design file: faces that
are not drawn, lines that are no records, numbers that are cut, what would
stop the conversion. It prints as compilers do, or JSON.")

if(WIN32)
    set(CPACK_GENERATOR ZIP)
    set(CPACK_PACKAGING_INSTALL_PREFIX /)
    set(CPACK_PACKAGE_FILE_NAME marlogl-${PROJECT_VERSION}-windows-x86_64)
endif()
include(CPack)
