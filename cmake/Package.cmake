# The installer (target "installer") and its contents. tools/package builds everything that is published.

find_program(VANTOR_MAKENSIS makensis)
find_program(VANTOR_CMARK cmark-gfm)
find_program(VANTOR_CONVERT convert)
if(NOT CMAKE_HOST_UNIX OR NOT VANTOR_MAKENSIS OR NOT VANTOR_CMARK OR NOT VANTOR_CONVERT)
  message(STATUS "No installer: needs nsis, cmark-gfm and imagemagick on Linux")
  return()
endif()

set(package_folder "${PROJECT_BINARY_DIR}/package")
file(MAKE_DIRECTORY "${package_folder}")

set(guide "${package_folder}/Guide.html")
set(guide_sources "${PROJECT_SOURCE_DIR}/docs/guide.md" "${PROJECT_SOURCE_DIR}/package/guide.css")
vantor_glob(guide_pictures docs/pictures/*.png)
add_custom_command(
  OUTPUT "${guide}"
  COMMAND "${PROJECT_SOURCE_DIR}/tools/lib/make-guide" ${guide_sources} "${guide}"
  DEPENDS ${guide_sources} ${guide_pictures} tools/lib/make-guide
  VERBATIM)

set(icon "${PROJECT_SOURCE_DIR}/src/win32/Vantor.ico")
set(picture "${package_folder}/Picture.bmp")  # the mark on the band of the program's messages
add_custom_command(
  OUTPUT "${picture}"
  COMMAND "${VANTOR_CONVERT}" -size 164x314 "gradient:#b4c8ff-#9eb6f8" "(" "${icon}[7]" -resize 128x128 ")"
          -gravity north -geometry +0+64 -composite -type truecolor "BMP3:${picture}"
  DEPENDS "${icon}"
  VERBATIM)

set(VANTOR_INSTALLER "${package_folder}/Vantor-${PROJECT_VERSION}-setup.exe")
set(notices "${PROJECT_SOURCE_DIR}/package/Notices.txt")
add_custom_command(
  OUTPUT "${VANTOR_INSTALLER}"
  COMMAND
    "${VANTOR_MAKENSIS}" -V2 -WX -INPUTCHARSET UTF8 "-DOUTPUT=${VANTOR_INSTALLER}" "-DVERSION=${PROJECT_VERSION}"
    "-DPUBLISHER=${VANTOR_PUBLISHER}" "-DDESCRIPTION=${VANTOR_DESCRIPTION}" "-DSITE=${VANTOR_MAKER_SITE}"
    "-DPROGRAM=$<TARGET_FILE:Vantor>" "-DGUIDE=${guide}" "-DNOTICES=${notices}" "-DICON=${icon}"
    "-DPICTURE=${picture}" "${PROJECT_SOURCE_DIR}/package/Installer.nsi"
  DEPENDS Vantor "${guide}" "${notices}" "${icon}" "${picture}" package/Installer.nsi
  VERBATIM)
add_custom_target(installer DEPENDS "${VANTOR_INSTALLER}")

# The values that tools/package fills into the package managers' manifests.
file(
  WRITE "${package_folder}/values"
  "VERSION=${PROJECT_VERSION}\nPUBLISHER=${VANTOR_PUBLISHER}\nDESCRIPTION=${VANTOR_DESCRIPTION}\n"
  "SITE=${VANTOR_MAKER_SITE}\nDOWNLOADS=${VANTOR_DOWNLOADS}\nBUGS=${VANTOR_BUG_REPORT_ADDRESS}\n")
