# SPDX-License-Identifier: GPL-3.0-or-later
# What `cmake --install` puts where, and the two Debian packages that CPack makes of it: tallyline-cli with the command
# line and the simulated instrument, tallyline with the window.
include(GNUInstallDirs)

set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME cli)
install(TARGETS tallyline-cli RUNTIME COMPONENT cli)
if(TARGET tallyline-sim)
    install(TARGETS tallyline-sim RUNTIME COMPONENT cli)
endif()
install(TARGETS tallyline RUNTIME COMPONENT window)
foreach(help tallyhelp tallyhelp_de tallyhelp_fr tallyhelp_es)
    install(FILES ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${help}.hlp DESTINATION ${CMAKE_INSTALL_DATADIR}/tallyline COMPONENT window OPTIONAL)
endforeach()
install(DIRECTORY samples/ DESTINATION ${CMAKE_INSTALL_DATADIR}/tallyline/samples COMPONENT window
    FILES_MATCHING PATTERN "*.dat" PATTERN "*.not")
install(FILES packaging/tallyline.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications COMPONENT window)
install(FILES packaging/org.tallyline.Tallyline.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo COMPONENT window)
install(FILES packaging/icons/tallyline.svg
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps COMPONENT window)
install(FILES src/app/tallyline.png DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/128x128/apps COMPONENT window)

# Manual pages and completions are made from what the programs say of themselves.
find_program(TALLY_HELP2MAN help2man)
find_program(TALLY_GZIP gzip)
if(TALLY_PACKAGE AND TALLY_HELP2MAN AND TALLY_GZIP)
    set(made ${CMAKE_BINARY_DIR}/made)
    file(MAKE_DIRECTORY ${made})
    # tally_made(FILE NAME COMPONENT FOLDER COMMAND...): a file that a command writes to its standard output, installed
    # under a name of its own.
    function(tally_made file name component folder)
        add_custom_command(OUTPUT ${made}/${file} COMMAND ${ARGN} > ${made}/${file}
            DEPENDS tallyline-cli tallyline-sim tallyline VERBATIM)
        install(FILES ${made}/${file} RENAME ${name} DESTINATION ${folder} COMPONENT ${component})
        set_property(GLOBAL APPEND PROPERTY tally_made ${made}/${file})
    endfunction()
    foreach(program tallyline tallyline-cli tallyline-sim)
        set(component cli)
        set(about "work with recordings of portable load recorders")
        if(program STREQUAL tallyline)
            set(component window)
            set(about "download, plot and study recordings of portable load recorders")
        elseif(program STREQUAL tallyline-sim)
            set(about "a simulated portable load recorder on a pseudo-terminal")
        endif()
        tally_made(${program}.1.gz ${program}.1.gz ${component} ${CMAKE_INSTALL_MANDIR}/man1
            sh -c "QT_QPA_PLATFORM=offscreen '${TALLY_HELP2MAN}' --no-info --name='${about}' -o '${made}/${program}.1' '$<TARGET_FILE:${program}>' && '${TALLY_GZIP}' -9nc '${made}/${program}.1'")
    endforeach()
    tally_made(tallyline-cli.bash tallyline-cli cli ${CMAKE_INSTALL_DATADIR}/bash-completion/completions
        $<TARGET_FILE:tallyline-cli> completion bash)
    tally_made(_tallyline-cli _tallyline-cli cli ${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions
        $<TARGET_FILE:tallyline-cli> completion zsh)
    tally_made(tallyline-cli.fish tallyline-cli.fish cli ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d
        $<TARGET_FILE:tallyline-cli> completion fish)
    foreach(package tallyline tallyline-cli)
        set(component cli)
        if(package STREQUAL tallyline)
            set(component window)
        endif()
        set(documents ${CMAKE_INSTALL_DATADIR}/doc/${package})
        tally_made(${package}.news.gz NEWS.gz ${component} ${documents} ${TALLY_GZIP} -9nc ${CMAKE_SOURCE_DIR}/CHANGELOG.md)
        configure_file(packaging/changelog.in ${made}/${package}.changelog @ONLY)
        tally_made(${package}.changelog.gz changelog.gz ${component} ${documents}
            ${TALLY_GZIP} -9nc ${made}/${package}.changelog)
        install(FILES packaging/copyright DESTINATION ${documents} COMPONENT ${component})
    endforeach()
    get_property(all_made GLOBAL PROPERTY tally_made)
    add_custom_target(tally_manuals ALL DEPENDS ${all_made})
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tallyline)
set(CPACK_PACKAGE_CONTACT "Tallyline maintainers <maintainers@tallyline.example>")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL cli window)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_CLI_PACKAGE_NAME tallyline-cli)
set(CPACK_DEBIAN_WINDOW_PACKAGE_NAME tallyline)
set(CPACK_DEBIAN_WINDOW_PACKAGE_DEPENDS "tallyline-cli (= ${PROJECT_VERSION}), fonts-liberation, libqt6sql6-sqlite, libqt6svg6, qt6-translations-l10n")
set(CPACK_DEBIAN_CLI_PACKAGE_DEPENDS "fonts-liberation, libqt6sql6-sqlite")
set(CPACK_DEBIAN_CLI_PACKAGE_SUGGESTS "libqt6sql6-psql")
set(CPACK_COMPONENT_CLI_DESCRIPTION "recordings of portable load recorders on the command line
 Reads, checks, tabulates, plots and exports the recordings of portable
 electrical load recorders, talks to an instrument over a serial line, and
 studies what a load means. Needs no display. With a simulated instrument.")
set(CPACK_COMPONENT_WINDOW_DESCRIPTION "download, plot and study recordings of portable load recorders
 Reads battery-powered ammeters and voltmeters that hang on a feeder for
 weeks: downloads a recording over a serial line, checks what arrives, keeps
 it as a text data file, plots, tabulates, prints and exports it, and surveys
 the peaks of a station.")
include(CPack)
