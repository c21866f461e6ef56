#!/usr/bin/env bash
# Redraws every PNG and GIF picture from its SVG source with rsvg-convert
# (Debian: librsvg2-bin) and, for the GIFs, ImageMagick's convert
# (imagemagick). A developer's tool: the build never runs it, the PNGs
# are kept in the repository. Run it after editing an SVG and commit both.
#
#   bash tools/pictures.sh
set -euo pipefail

top=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
img="$top/img"
hicolor="$top/desktop/icons/hicolor"

# draw SVG SIZE OUT: the SVG as a SIZE x SIZE PNG.
draw() { rsvg-convert -w "$2" -h "$2" -o "$3" "$1"; }

# Each picture at its own size and at twice that as NAME@2x.png, which Qt
# picks on screens of a device pixel ratio of 2.
both() {
  local name=$1 size=$2
  draw "$img/$name.svg" "$size" "$img/$name.png"
  draw "$img/$name.svg" $((size * 2)) "$img/$name@2x.png"
}

# draw_wh SVG W H OUT: the SVG as a W x H PNG, for pictures that are not square.
draw_wh() { rsvg-convert -w "$2" -h "$3" -o "$4" "$1"; }

# both_wh NAME W H: as both, for a W x H picture.
both_wh() {
  local name=$1 w=$2 h=$3
  draw_wh "$img/$name.svg" "$w" "$h" "$img/$name.png"
  draw_wh "$img/$name.svg" $((w * 2)) $((h * 2)) "$img/$name@2x.png"
}

for name in tb_open tb_new tb_save tb_recreate tb_undo tb_redo tb_cut tb_copy \
            tb_paste tb_print tb_zoom tb_help; do
  both "$name" 32
done
both edit_pointer 32
for name in page_left page_left_pressed page_right page_right_pressed; do
  both "$name" 24
done
for name in ini_example0 ini_example1 ini_example2 ini_open ini_new; do
  both "$name" 64
done

# The new-worksheet wizard: its welcome picture, the subjects, the
# difficulties, where the solutions go, and the icons of the topic tree.
both_wh wizard_welcome 160 320
for name in subject_chemistry chem1 chem2 nada; do
  both "$name" 96
done
for name in diff_low diff_medium diff_high diff_progressive; do
  both_wh "$name" 64 20
done
for name in answers_none answers_after answers_end answers_page; do
  both_wh "$name" 64 80
done
for name in kind_question kind_exercise kind_problem kind_theory topic_closed topic_open \
            subject_root; do
  both "$name" 16
done

# Pictures that worksheets name in their text (#IMG): the Lewis structures,
# as the .gif files the problems ask for, and a piece of apparatus.
for name in Q_LW_H2O Q_LW_NH3 Q_LW_CH4 Q_LW_CO2; do
  tmp=$(mktemp --suffix=.png)
  draw "$img/$name.svg" 240 "$tmp"
  convert "$tmp" "$img/$name.gif"
  rm -f "$tmp"
done
draw_wh "$img/titration.svg" 240 360 "$img/titration.png"

# The program's icon: in img/, and in the desktop's icon theme at the sizes
# a desktop asks for, with the SVG itself as the scalable one.
draw "$img/app_icon.svg" 256 "$img/app_icon.png"
mkdir -p "$hicolor/scalable/apps"
cp "$img/app_icon.svg" "$hicolor/scalable/apps/org.lumenfold.Sheetsmith.svg"
for size in 48 64 128 256; do
  mkdir -p "$hicolor/${size}x${size}/apps"
  draw "$img/app_icon.svg" "$size" "$hicolor/${size}x${size}/apps/org.lumenfold.Sheetsmith.png"
done
