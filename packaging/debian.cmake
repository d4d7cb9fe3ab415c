# The Debian package, which "packaging/make_package.sh" builds. Whoever builds it from the same
# sources gets the same bytes: times are that of the release, unless SOURCE_DATE_EPOCH says
# otherwise.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGING_INSTALL_PREFIX ${CMAKE_INSTALL_PREFIX})
set(CPACK_STRIP_FILES ON)
# The makers have no address of their own yet; this one is nobody's.
set(CPACK_PACKAGE_CONTACT "The makers of Gravelon <gravelon@example.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "cycling race on a board, for up to four people")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Four teams of four riders race over a course that is put together from the
sections of one printed board. A rider moves by two dice, or by strength cards
laid in their place, and riders directly behind may follow. Sprints and the
finish give points; event cards bring flat tires and crashes, or a good day.
.
Each team is led by a person at the one screen or by the computer, in English,
German, French or Dutch.")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER ${CPACK_PACKAGE_CONTACT})
set(CPACK_DEBIAN_PACKAGE_SECTION games)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

execute_process(COMMAND date -u -d ${GRAVELON_RELEASE_DATE} +%s
    OUTPUT_VARIABLE release_second OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND env LC_ALL=C date -u -d ${GRAVELON_RELEASE_DATE} -R
    OUTPUT_VARIABLE RELEASE_DATE_IN_WORDS OUTPUT_STRIP_TRAILING_WHITESPACE)
file(WRITE ${made}/package_time.cmake
"if(NOT DEFINED ENV{SOURCE_DATE_EPOCH})
    set(ENV{SOURCE_DATE_EPOCH} ${release_second})
endif()
")
set(CPACK_PROJECT_CONFIG_FILE ${made}/package_time.cmake)

configure_file(packaging/changelog.in ${made}/changelog @ONLY)
execute_process(COMMAND gzip -9nkf ${made}/changelog COMMAND_ERROR_IS_FATAL ANY)
install(FILES packaging/copyright ${made}/changelog.gz DESTINATION ${CMAKE_INSTALL_DOCDIR})

include(CPack)
