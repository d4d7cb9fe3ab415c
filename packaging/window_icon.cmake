# Turns the window's icon into the numbers that src/x11_window.cpp includes, so that the program
# needs no file for it.
set(icon_file ${CMAKE_SOURCE_DIR}/packaging/icon/window_icon.argb)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${icon_file})
file(READ ${icon_file} icon_bytes HEX)
string(REGEX REPLACE "(........)" "0x\\1,\n" icon_words "${icon_bytes}")
file(CONFIGURE OUTPUT ${CMAKE_BINARY_DIR}/generated/window_icon.inc CONTENT "${icon_words}")
target_include_directories(gravelon PRIVATE ${CMAKE_BINARY_DIR}/generated)
