# Sets KORVALE_ICON to the program's icon and KORVALE_POINTER to its mouse pointer for customizing
# colours: drawn from resources/korvale.svg and resources/colors.svg where the tools for it are
# installed, otherwise the ready drawings beside them. The target korvale_icon draws both.

find_program(KORVALE_RSVG rsvg-convert)
find_program(KORVALE_ICOTOOL icotool)
set(icon_sizes 16 20 24 32 40 48 64 128 256)

if(KORVALE_RSVG AND KORVALE_ICOTOOL)
  set(drawing ${PROJECT_SOURCE_DIR}/resources/korvale.svg)
  set(KORVALE_ICON ${PROJECT_BINARY_DIR}/korvale.ico)
  set(pictures)
  set(entries)
  foreach(size ${icon_sizes})
    set(picture ${PROJECT_BINARY_DIR}/icon_${size}.png)
    add_custom_command(
      OUTPUT ${picture}
      COMMAND ${KORVALE_RSVG} -w ${size} -h ${size} -o ${picture} ${drawing}
      DEPENDS ${drawing})
    list(APPEND pictures ${picture})
    # Since Vista, Windows reads compressed pictures of any size. Those of windows and the task bar
    # at 100 and 150 %, and small ones, need no unpacking, which would load a library for it; the
    # others keep the program small.
    if(size LESS 40 OR size EQUAL 48)
      list(APPEND entries ${picture})
    else()
      list(APPEND entries --raw=${picture})
    endif()
  endforeach()
  add_custom_command(
    OUTPUT ${KORVALE_ICON}
    COMMAND ${KORVALE_ICOTOOL} -c -o ${KORVALE_ICON} ${entries}
    DEPENDS ${pictures})

  # The hot spot is the middle of the circle.
  set(pointer_drawing ${PROJECT_SOURCE_DIR}/resources/colors.svg)
  set(pointer_picture ${PROJECT_BINARY_DIR}/colors.png)
  set(KORVALE_POINTER ${PROJECT_BINARY_DIR}/colors.cur)
  add_custom_command(
    OUTPUT ${KORVALE_POINTER}
    COMMAND ${KORVALE_RSVG} -w 32 -h 32 -o ${pointer_picture} ${pointer_drawing}
    COMMAND ${KORVALE_ICOTOOL} -c --cursor -X 16 -Y 16 -o ${KORVALE_POINTER} ${pointer_picture}
    DEPENDS ${pointer_drawing})
  add_custom_target(korvale_icon DEPENDS ${KORVALE_ICON} ${KORVALE_POINTER})
else()
  set(KORVALE_ICON ${PROJECT_SOURCE_DIR}/resources/korvale.ico)
  set(KORVALE_POINTER ${PROJECT_SOURCE_DIR}/resources/colors.cur)
  add_custom_target(korvale_icon)
endif()
