# shellcheck shell=bash
# Wine on a screen of its own. Source it, call wine_begin once, then wine_suite for each suite.
# Everything that was started ends together with the script that sources this file.

WINE_LOADER=${WINE_LOADER:-/usr/lib/wine/wine64}
WINE_SERVER=${WINE_SERVER:-/usr/lib/wine/wineserver64}
WINE_USUAL_SCREEN=1280x1024
WINE_SCREEN=${WINE_SCREEN:-$WINE_USUAL_SCREEN}

# Starts a virtual display, unless KORVALE_DISPLAY names one, and leaves its name in DISPLAY.
wine_display() {
  if [ -n "${KORVALE_DISPLAY:-}" ]; then
    export DISPLAY=$KORVALE_DISPLAY
  else
    wine_xvfb "$WINE_SCREEN" && wine_keyboard && wine_pointer
  fi
}

# wine_other_display SIZE: the suites that follow have a virtual display of that size, WIDTHxHEIGHT.
wine_other_display() {
  wine_end_suites
  kill "$WINE_POINTER" "$WINE_XVFB"
  wait "$WINE_POINTER" "$WINE_XVFB" 2>/dev/null
  wine_xvfb "$1" && wine_pointer
}

wine_xvfb() {
  rm -f "$WINE_WORK/display"
  # Xvfb chooses a free number itself and writes it to the descriptor when it is ready.
  Xvfb -displayfd 5 -screen 0 "${1}x24" -nolisten tcp -noreset \
    5>"$WINE_WORK/display" >/dev/null 2>&1 &
  WINE_XVFB=$!
  local tries=0
  until [ -s "$WINE_WORK/display" ]; do
    tries=$((tries + 1))
    if [ $tries -gt 200 ] || ! kill -0 "$WINE_XVFB" 2>/dev/null; then
      echo "no virtual display" >&2
      return 1
    fi
    sleep 0.05
  done
  DISPLAY=:$(tr -d '[:space:]' <"$WINE_WORK/display")
  export DISPLAY
}

# Lets the display tell Wine nothing about keys: only SendInput presses any.
wine_keyboard() {
  cc -shared -fPIC -O1 -Wall -Wextra -Werror -o "$WINE_WORK/no_keymap.so" script/lib/no_keymap.c &&
    wine_start_by env LD_PRELOAD="$WINE_WORK/no_keymap.so"
}

# Wine wants the page at 7FFE0000 of every program for itself. Debian's has no preloader that keeps
# it free, and its heap begins at random within the gigabyte that holds this page: once in about
# 1,000 starts it is taken, and CreateProcess fails with error 1359. So nothing is at random.
wine_addresses() {
  if setarch -R true 2>/dev/null; then
    wine_start_by setarch -R
  else
    echo "addresses stay random here: one in 1,000 programs will not start under Wine" >&2
  fi
}

# From now on Wine starts by this command; what it changes, the programs that Wine starts inherit.
wine_start_by() {
  local start=$WINE_WORK/wine-by-$1
  {
    echo '#!/bin/sh'
    printf 'exec'
    printf ' %q' "$@" "$WINE_LOADER"
    echo ' "$@"'
  } >"$start"
  chmod +x "$start"
  WINE_LOADER=$start
}

# The display tells every window late where the pointer was, and Wine puts it back there. So
# only the tests tell where it is, Wine by Windows' own calls and the display by KORVALE_POINTER.
wine_pointer() {
  local folder=$WINE_WORK/pointer kept=$WINE_WORK/pointer-kept
  rm -rf "$folder" "$kept"
  mkdir "$folder"
  mkfifo "$kept"
  python3 script/lib/keep_pointer.py "$folder" >"$kept" &
  WINE_POINTER=$!
  read -r <"$kept" && KORVALE_POINTER=$(wine_path "$folder") && export KORVALE_POINTER
}

# The prefix that every suite starts from. Making one takes long, so it is kept between runs.
wine_template() {
  local wine_version
  wine_version=$("$WINE_LOADER" --version | tr -c 'A-Za-z0-9.\n' '_')
  WINE_TEMPLATE=${KORVALE_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/korvale}/prefix-4-$wine_version
  if [ -f "$WINE_TEMPLATE.done" ]; then return; fi
  rm -rf "$WINE_TEMPLATE"
  mkdir -p "$(dirname "$WINE_TEMPLATE")"
  export WINEPREFIX=$WINE_TEMPLATE
  "$WINE_LOADER" wineboot -i >/dev/null 2>&1
  # Without a window manager only Wine's own desktop window knows who is in front.
  "$WINE_LOADER" reg add 'HKCU\Software\Wine\Explorer' /v Desktop /d Default /f >/dev/null
  "$WINE_LOADER" reg add 'HKCU\Software\Wine\Explorer\Desktops' /v Default \
    /d "$WINE_USUAL_SCREEN" /f >/dev/null
  # A program that crashes must end at once, not wait in a debugger.
  "$WINE_LOADER" reg delete 'HKLM\Software\Microsoft\Windows NT\CurrentVersion\AeDebug' /f \
    >/dev/null
  "$WINE_SERVER" -w
  touch "$WINE_TEMPLATE.done"
}

# Prepares everything that the suites share; ends it all when the script ends.
wine_begin() {
  WINE_WORK=$(mktemp -d "${TMPDIR:-/tmp}/korvale-wine.XXXXXX")
  WINE_PREFIXES=()
  trap wine_end EXIT
  trap 'exit 130' INT
  trap 'exit 143' TERM
  export WINEDEBUG=${WINEDEBUG:--all} WINEDLLOVERRIDES='mscoree,mshtml='
  export WINESERVER=$WINE_SERVER WINELOADER=$WINE_LOADER
  export FONTCONFIG_FILE=${KORVALE_FONTS:-$PWD/script/lib/fonts.conf}
  wine_addresses && wine_display && wine_template
}

# A fresh prefix for the suite that follows; with WINE_DPI, its screen has so many dots per inch.
wine_suite() {
  export WINEPREFIX=$WINE_WORK/prefix-${#WINE_PREFIXES[@]}
  WINE_PREFIXES+=("$WINEPREFIX")
  # Nobody writes into Wine's programs, so they are shared; the registry files are this suite's own.
  if cp -al "$WINE_TEMPLATE" "$WINEPREFIX" 2>/dev/null; then
    rm -f "$WINEPREFIX"/*.reg
    cp -a "$WINE_TEMPLATE"/*.reg "$WINEPREFIX"/
  else
    cp -a "$WINE_TEMPLATE" "$WINEPREFIX"
  fi
  # Debian's Wine does not look for its own fonts; without this one title bars show letters instead
  # of buttons.
  cp /usr/share/wine/fonts/marlett.ttf "$WINEPREFIX/drive_c/windows/Fonts/" || true
  # Into the file: a program that told the registry could leave a desktop of the usual size behind.
  [ "$WINE_SCREEN" = "$WINE_USUAL_SCREEN" ] ||
    printf '\n[Software\\\\Wine\\\\Explorer\\\\Desktops]\n"Default"="%s"\n' "$WINE_SCREEN" \
      >>"$WINEPREFIX/user.reg"
  [ -z "${WINE_DPI:-}" ] ||
    printf '\n[Control Panel\\\\Desktop]\n"LogPixels"=dword:%08x\n' "$WINE_DPI" \
      >>"$WINEPREFIX/user.reg"
  # Where Wine believes the pointer to be at first.
  [ -z "${KORVALE_POINTER:-}" ] || : >"$WINE_WORK/pointer/0,0"
}

wine_run() { "$WINE_LOADER" "$@"; }

# The same path as Windows programs write it.
wine_path() {
  local path
  path=$(realpath "$1")
  printf 'Z:%s' "${path//\//\\}"
}

# Takes the pictures that the programs under test ask for, until the script ends.
wine_pictures() {
  local folder=$1
  mkdir -p "$folder"
  rm -f "$folder"/*.request
  KORVALE_PICTURES=$(wine_path "$folder")
  export KORVALE_PICTURES
  (
    trap - EXIT INT TERM
    while sleep 0.05; do
      for request in "$folder"/*.request; do
        [ -e "$request" ] || continue
        display=$DISPLAY
        [ ! -s "$WINE_WORK/display" ] || display=:$(<"$WINE_WORK/display")
        import -display "$display" -window root "${request%.request}.png" 2>/dev/null
        rm -f "$request"
      done
    done
  ) &
  WINE_PHOTOGRAPHER=$!
}

# Ends what still runs in the prefixes so far, and forgets those of suites.
wine_end_suites() {
  local prefix
  for prefix in "${WINE_PREFIXES[@]}"; do
    WINEPREFIX=$prefix "$WINE_SERVER" -k 2>/dev/null || true
    WINEPREFIX=$prefix "$WINE_SERVER" -w 2>/dev/null || true
  done
  WINE_PREFIXES=()
  rm -rf "$WINE_WORK"/prefix-*
}

wine_end() {
  local status=$?
  trap - EXIT
  [ -z "${WINE_PHOTOGRAPHER:-}" ] || kill "$WINE_PHOTOGRAPHER" 2>/dev/null || true
  wine_end_suites
  [ -z "${WINE_POINTER:-}" ] || kill "$WINE_POINTER" 2>/dev/null || true
  [ -z "${WINE_XVFB:-}" ] || kill "$WINE_XVFB" 2>/dev/null || true
  rm -rf "$WINE_WORK"
  exit "$status"
}
