# Sets KORVALE_ICON to the program's icon: drawn from resources/korvale.svg where the tools for it
# are installed, otherwise the drawing that is kept beside it. The target korvale_icon draws it.

find_program(KORVALE_RSVG rsvg-convert)
find_program(KORVALE_ICOTOOL icotool)
set(icon_sizes 16 20 24 32 40 48 64 128 256)

if(KORVALE_RSVG AND KORVALE_ICOTOOL)
  set(drawing ${PROJECT_SOURCE_DIR}/resources/korvale.svg)
  set(KORVALE_ICON ${PROJECT_BINARY_DIR}/korvale.ico)
  set(pictures)
  foreach(size ${icon_sizes})
    set(picture ${PROJECT_BINARY_DIR}/icon_${size}.png)
    add_custom_command(
      OUTPUT ${picture}
      COMMAND ${KORVALE_RSVG} -w ${size} -h ${size} -o ${picture} ${drawing}
      DEPENDS ${drawing})
    list(APPEND pictures ${picture})
  endforeach()
  # The two large pictures stay compressed inside the icon.
  set(small ${pictures})
  list(POP_BACK small huge large)
  add_custom_command(
    OUTPUT ${KORVALE_ICON}
    COMMAND ${KORVALE_ICOTOOL} -c -o ${KORVALE_ICON} ${small} --raw=${large} --raw=${huge}
    DEPENDS ${pictures})
  add_custom_target(korvale_icon DEPENDS ${KORVALE_ICON})
else()
  set(KORVALE_ICON ${PROJECT_SOURCE_DIR}/resources/korvale.ico)
  add_custom_target(korvale_icon)
endif()
