#!/bin/bash
# Saved drawings in other programs, with the measures of the data: DXF in ezdxf and LibreCAD, SVG in
# librsvg, PDF in poppler. What is not installed is left out; without any of them nothing is tested.
# tests/drawings.sh ORM2002-COPIONE SCRIPTS-FOLDER
set -euo pipefail
copione=$1 scripts=$2
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
python=/usr/bin/python3
tried=0
have() { command -v "$1" >/dev/null; }

"$copione" --desktop --disegni --immagini "$scratch" \
  "$scripts"/sections/{forme_t,circolare}.copione "$scripts"/balcony/mensole.copione \
  "$scripts"/slabs/solaio_traliccio.copione >/dev/null
cd "$scratch"

if $python -c 'import ezdxf' 2>/dev/null; then
  tried=1
  $python - <<'PYTHON'
import glob
import ezdxf

def drawing(name):
    document = ezdxf.readfile(name + ".dxf")
    assert document.dxfversion == "AC1009" and document.header["$INSUNITS"] == 5, name
    assert not document.audit().errors, name
    return document.modelspace()

def sizes(space):  # of closed outlines, cm
    for outline in space.query("POLYLINE"):
        x, y = zip(*[(v.dxf.location.x, v.dxf.location.y) for v in outline.vertices])
        yield round(max(x) - min(x), 2), round(max(y) - min(y), 2)

def texts(space):
    return {text.dxf.text for text in space.query("TEXT")}

def holds(there, *wanted):
    for one in wanted:
        assert one in there, (one, there)

for name in glob.glob("*.dxf"):
    assert not ezdxf.readfile(name).audit().errors, name
t = drawing("t")
holds(list(sizes(t)), (100, 80))
holds(texts(t), "B 100", "H 80", "s 15", "b 30", "c 3", "6,03 cmq.")
measures = {text.dxf.text for text in t.query('TEXT[layer=="QUOTE"]')}
assert measures == {"B 100", "H 80", "s 15", "b 30", "c 3"}, measures
ring = drawing("anulare")
radii = [round(circle.dxf.radius, 3) for circle in ring.query("CIRCLE")]
holds(radii, 30, 20)
assert radii.count(0.8) == 10 and radii.count(0.9) == 5, radii  # 10D16 and 5D18
holds(list(sizes(drawing("balcone_mensole"))), (100, 12), (100, 35), (220, 100), (45, 35))
slab = drawing("solaio_disegno_uno")
bars = [round(line.dxf.end.x - line.dxf.start.x, 1) for line in slab.query("LINE")]
holds(bars, 175)
assert bars.count(520) == 2, bars  # the additional bar, and the joist 10 cm on each support
holds(texts(slab), "Moncone lungo SIN  %%c 16  L = 1,75 ml (inc. 20 + camp. 155 cm)")
PYTHON
fi

# SVG and PDF are the same picture: each word at the same place.
if have rsvg-convert && have pdftotext; then
  tried=1
  for drawing in *.svg; do
    name=${drawing%.svg}
    rsvg-convert -f pdf -o svg.pdf "$name.svg"
    for file in svg "$name"; do
      pdftotext -bbox "$file.pdf" - | grep '<word' | sort >"$file.words"
    done
    $python - svg.words "$name.words" <<'PYTHON'
import re, sys
def words(name):
    found = []
    for line in open(name, encoding="utf-8"):
        x1, y1, x2, y2 = (float(n) for n in re.findall(r'[xy]M(?:in|ax)="([-0-9.]+)"', line))
        found.append((re.search(">(.*)<", line)[1].replace("ﬁ", "fi"), (x1 + x2) / 2, (y1 + y2) / 2))
    return found
ours, theirs = words(sys.argv[1]), words(sys.argv[2])
assert len(ours) > 9 and sorted(w[0] for w in ours) == sorted(w[0] for w in theirs), (ours, theirs)
for word, x, y in ours:
    near = min(abs(x - a) + abs(y - b) for other, a, b in theirs if other == word)
    assert near < 12, (word, near)
PYTHON
  done
fi

if have librecad; then
  tried=1
  QT_QPA_PLATFORM=offscreen timeout 60 librecad dxf2pdf t.dxf >/dev/null 2>&1
  [ "$(head -c 4 t.pdf)" = %PDF ]
fi
[ $tried = 1 ] || exit 77
