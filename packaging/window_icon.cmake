# What the x11_* sources need: the libraries of X11, and the window's icon as the numbers that
# x11_window.cpp includes, so that the program needs no file for it.
set(icon_file ${CMAKE_SOURCE_DIR}/packaging/icon/window_icon.argb)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${icon_file})
file(READ ${icon_file} icon_bytes HEX)
string(REGEX REPLACE "(........)" "0x\\1,\n" icon_words "${icon_bytes}")
file(CONFIGURE OUTPUT ${CMAKE_BINARY_DIR}/generated/window_icon.inc CONTENT "${icon_words}")
add_library(window_system INTERFACE)
target_include_directories(window_system INTERFACE ${CMAKE_BINARY_DIR}/generated)
target_link_libraries(window_system INTERFACE X11::X11 X11::Xrandr)
