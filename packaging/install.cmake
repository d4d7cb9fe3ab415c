# What "cmake --install" puts where. The launcher finds the rest by relative paths; the desktop entry
# alone names the prefix.
include(GNUInstallDirs)
set(GRAVELON_GAMES_DIR games CACHE STRING "Folder of the launcher, below the prefix")
set(GAMES_DIR ${CMAKE_INSTALL_PREFIX}/${GRAVELON_GAMES_DIR})
set(made ${CMAKE_BINARY_DIR}/packaging)

set(libexec ${CMAKE_INSTALL_LIBEXECDIR}/gravelon)
set(pictures ${CMAKE_INSTALL_DATADIR}/gravelon)
cmake_path(RELATIVE_PATH CMAKE_INSTALL_FULL_LIBEXECDIR BASE_DIRECTORY ${GAMES_DIR}
    OUTPUT_VARIABLE LIBEXEC_FROM_GAMES)
cmake_path(RELATIVE_PATH CMAKE_INSTALL_FULL_DATADIR BASE_DIRECTORY ${GAMES_DIR}
    OUTPUT_VARIABLE PICTURES_FROM_GAMES)
string(APPEND LIBEXEC_FROM_GAMES /gravelon)
string(APPEND PICTURES_FROM_GAMES /gravelon)

foreach(file gravelon gravelon.desktop gravelon.metainfo.xml gravelon.6)
    configure_file(packaging/${file}.in ${made}/${file} @ONLY)
endforeach()
execute_process(COMMAND gzip -9nkf ${made}/gravelon.6 COMMAND_ERROR_IS_FATAL ANY)

install(PROGRAMS ${made}/gravelon DESTINATION ${GRAVELON_GAMES_DIR})
install(TARGETS gravelon RUNTIME DESTINATION ${libexec})
install(FILES packaging/player_folder.sh DESTINATION ${libexec})
file(GLOB given_pictures CONFIGURE_DEPENDS data/*.dat)
install(FILES ${given_pictures} DESTINATION ${pictures})
install(FILES ${made}/gravelon.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${made}/gravelon.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ${made}/gravelon.6.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man6)
file(GLOB screenshots CONFIGURE_DEPENDS docs/screenshot-*.png)
install(FILES ${screenshots} DESTINATION ${CMAKE_INSTALL_DOCDIR})
set(icons ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
install(FILES packaging/icon/gravelon.svg DESTINATION ${icons}/scalable/apps)
foreach(size 16 22 24 32 48 64 128 256)
    install(FILES packaging/icon/gravelon-${size}.png
        DESTINATION ${icons}/${size}x${size}/apps RENAME gravelon.png)
endforeach()
