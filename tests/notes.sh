#!/bin/bash
# The technical notes: each PDF holds its text and the letters of its drawing, and a note whose
# example no longer gives the stated figures is not made.
# tests/notes.sh ORM2002-NOTA NOTES-FOLDER TEXTS-FOLDER
set -euo pipefail
nota=$1 made=$2 texts=$3
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

holds() {  # holds FILE TEXT...: the PDF shows each text
  pdftotext -layout "$made/$1" "$scratch/text"
  for text in "${@:2}"; do
    grep -qF -- "$text" "$scratch/text" || { echo "$1 non contiene: $text"; exit 1; }
  done
}
holds BALCONI.PDF "Balconi in pietra: nota tecnica" "1014,7" "Muro" "Putrella" "Lastra"
holds SOLAIATRALICCIO.PDF "Solai a traliccio e laterizio: nota tecnica" "2279,29" \
  "DISEGNO ARMATURE" "Moncone lungo SIN" "Zona piena 25,0 cm"

cp "$texts"/solai_traliccio.md "$scratch"
sed 's/^expect cdRisultati(14) .*/expect cdRisultati(14) 2279,30/' \
  "$texts"/solai_traliccio.copione >"$scratch"/solai_traliccio.copione
if "$nota" "$scratch" solai_traliccio "$scratch"/N.PDF 2>"$scratch"/errors; then
  echo "Una nota con un esempio sbagliato è stata composta"; exit 1
fi
[ ! -e "$scratch"/N.PDF ] && grep -q "2279,29" "$scratch"/errors

# A drawing that the example does not give.
sed '/^picture/d' "$texts"/solai_traliccio.copione >"$scratch"/solai_traliccio.copione
if "$nota" "$scratch" solai_traliccio "$scratch"/N.PDF 2>"$scratch"/errors; then
  echo "Una nota senza il suo disegno è stata composta"; exit 1
fi
[ ! -e "$scratch"/N.PDF ] && grep -q 'Manca il disegno "armature"' "$scratch"/errors
