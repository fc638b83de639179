# What a user gets: the folder Korvale, which script/build installs, and a zip of it by CPack. Of
# installer.nsi script/package makes the installer.
set(resources ${PROJECT_SOURCE_DIR}/resources)
configure_file(${resources}/installer.nsi.in ${PROJECT_BINARY_DIR}/installer.nsi @ONLY)
configure_file(${resources}/README.txt.in README.txt @ONLY NEWLINE_STYLE CRLF)
# Any editor of Windows shows it with its lines.
configure_file(${PROJECT_SOURCE_DIR}/LICENSE LICENSE.txt @ONLY NEWLINE_STYLE CRLF)
install(TARGETS Korvale RUNTIME DESTINATION Korvale)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/README.txt ${CMAKE_CURRENT_BINARY_DIR}/LICENSE.txt
        DESTINATION Korvale)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/web DESTINATION Korvale)

# The zip's only folder has no version in its name: the folder's name is the installation's.
set(CPACK_GENERATOR ZIP)
set(CPACK_INCLUDE_TOPLEVEL_DIRECTORY OFF)
set(CPACK_PACKAGE_FILE_NAME ${PROJECT_NAME}-${PROJECT_VERSION}-win64)
set(CPACK_STRIP_FILES ON)
include(CPack)
