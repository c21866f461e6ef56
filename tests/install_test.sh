#!/usr/bin/env bash
# Installs a build into a fresh folder and checks that everything a user and a
# desktop need is in place, that the installed command-line tool finds its data
# in ../share/sheetsmith, and that the installed tree still works after it has
# been moved to another folder.
#
#   bash tests/install_test.sh BUILD_DIR
set -euo pipefail

build=${1:?usage: install_test.sh BUILD_DIR}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

fail() { echo "FAIL: $*" >&2; exit 1; }

# check_tree PREFIX: the files are there and the tool runs from there.
check_tree() {
  local p=$1 f s
  for f in bin/sheetsmith bin/sheetsmith-cli; do
    [ -x "$p/$f" ] || fail "$f is missing or not executable in $p"
  done
  for f in share/sheetsmith/lang/ENG_WIN_MAI.lmo \
           share/sheetsmith/img/tb_open.png \
           share/sheetsmith/Secondary_Chemistry.sed \
           share/sheetsmith/Manual_ENG.pdf \
           share/sheetsmith/examples/gas_laws.col \
           share/sheetsmith/examples/solutions.col \
           share/sheetsmith/examples/moles_and_formulas.col \
           share/applications/org.lumenfold.Sheetsmith.desktop \
           share/metainfo/org.lumenfold.Sheetsmith.metainfo.xml \
           share/mime/packages/org.lumenfold.Sheetsmith.xml \
           share/icons/hicolor/scalable/apps/org.lumenfold.Sheetsmith.svg; do
    [ -s "$p/$f" ] || fail "$f is missing or empty in $p"
  done
  for s in 48 64 128 256; do
    f=share/icons/hicolor/${s}x${s}/apps/org.lumenfold.Sheetsmith.png
    [ -s "$p/$f" ] || fail "$f is missing or empty in $p"
  done

  # Run from elsewhere, so that nothing is found through the current folder.
  local out
  out=$(cd "$work" && QT_QPA_PLATFORM=offscreen "$p/bin/sheetsmith-cli" subjects) ||
    fail "sheetsmith-cli subjects failed in $p"
  grep -qx 'Chemistry' <<<"$out" ||
    fail "sheetsmith-cli subjects in $p printed no subject 'Chemistry' but: $out"
  out=$(cd "$work" && QT_QPA_PLATFORM=offscreen "$p/bin/sheetsmith-cli" info \
          "$p/share/sheetsmith/examples/gas_laws.col") ||
    fail "the installed example does not open in $p"
}

first=$work/first
cmake --install "$build" --prefix "$first" >/dev/null || fail "cmake --install failed"
check_tree "$first"

# The file type: the mime database built from the installed package alone
# knows .col worksheets, in any case (a case-sensitive glob would end in ":cs").
if command -v update-mime-database >/dev/null; then
  update-mime-database "$first/share/mime" >/dev/null 2>&1 || fail "update-mime-database failed"
  globs=$first/share/mime/globs2
  grep -q ':application/x-sheetsmith-worksheet:\*\.col$' "$globs" ||
    fail "the mime database has no glob *.col for application/x-sheetsmith-worksheet"
  ! grep -q ':application/x-sheetsmith-worksheet:.*:cs$' "$globs" ||
    fail "the glob *.col of application/x-sheetsmith-worksheet is case-sensitive"
else
  echo "update-mime-database is not installed: the mime package is not compiled"
fi

# Moved: the programs find their data relative to themselves, not where they
# were installed.
moved=$work/elsewhere/usr
mkdir -p "$(dirname "$moved")"
cp -a "$first" "$moved"
rm -rf "$first"
check_tree "$moved"
echo "installed tree complete, and works where it was installed and after a move"
