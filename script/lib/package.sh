# shellcheck shell=bash
# Makes installers. Source it from the root of the checkout.

# make_installer FOLDER OUT [OPTIONS...]: an installer of the release in FOLDER.
make_installer() {
  local folder=$1 out=$2 files=build/package/files.nsh
  shift 2
  mkdir -p build/package
  python3 script/lib/installer_files.py "$folder" >"$files" &&
    makensis -V2 -WX -NOCD -DFILES="$files" -DOUT="$out" "$@" build/windows/installer.nsi
}

# prepare_packages FOLDER: leaves there, for the tests, the unpacked zip and an installer of an older
# version, and sets the variables by which the tests find these and the new installer. Needs wine.sh.
prepare_packages() {
  local folder=$1 setup
  [ -f dist/SHA256SUMS ] || { echo "script/package first" >&2; return 1; }
  (cd dist && sha256sum --check --strict --quiet SHA256SUMS) || return
  rm -rf "$folder"
  mkdir -p "$folder"
  python3 -m zipfile -e dist/Korvale-*-win64.zip "$folder/unpacked" || return
  cp -r dist/Korvale "$folder/older" && echo older >"$folder/older/web/older.html" || return
  make_installer "$folder/older" "$folder/older-setup.exe" -DVERSION=0.9.0 || return
  setup=$(echo dist/Korvale-*-setup.exe)
  KORVALE_UNPACKED=$(wine_path "$folder/unpacked")
  KORVALE_SETUP=$(wine_path "$setup")
  KORVALE_OLDER_SETUP=$(wine_path "$folder/older-setup.exe")
  export KORVALE_UNPACKED KORVALE_SETUP KORVALE_OLDER_SETUP
}
