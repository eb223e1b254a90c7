#!/bin/bash
# The program without a screen: exit codes, messages, and a folder that recalculates byte for byte.
# Called with CALCOLO.
set -uo pipefail
readonly calcolo=$1 tests=$(cd "$(dirname "$0")" && pwd)
readonly scripts=$tests/scripts sample=$tests/../data/sample
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
broken=0

# expects CODE WORDS COMMAND...: the exit code, and the words on standard error.
expects() {
  local code=$1 words=$2 told
  shift 2
  told=$("$@" 2>&1 >/dev/null)
  local got=$?
  [ $got = "$code" ] || { echo "NON VALE: $* esce con $got, non $code"; broken=1; }
  grep -qF "$words" <<<"$told" || { echo "NON VALE: $* dice: $told"; broken=1; }
}

expects 3 'Uso:' "$calcolo"
expects 0 '' "$calcolo" PPE --help
expects 3 'Codice sconosciuto' "$calcolo" XXX
expects 1 '/qui/no' "$calcolo" PPE --cartella /qui/no
expects 3 'GG/MM/AAAA' "$calcolo" PPE --data 31/02/2002
expects 3 'Uso:' "$calcolo" --tutti --euro
expects 1 'NON ESISTE IL FILE DEI DATI DEL PROFESSIONISTA' "$calcolo" PPE --cartella "$work"

cp "$sample/UTENTE.DAG" "$work"
expects 1 'NON ESISTE IL FILE DEI DATI DI INTESTAZIONE' "$calcolo" PPE --cartella "$work"
cp "$sample/INT_PPE.DAP" "$work"
printf '2,cinque\r\n' >"$work/INP_PPE.DAP"
expects 2 'Campo : NumParticelle' "$calcolo" PPE --cartella "$work"
[ ! -e "$work/OUT_PPE.DOC" ] || { echo "NON VALE: resta una parcella a metà"; broken=1; }

# The notes of both currencies, each as its script has it, and again without a change.
cp "$sample"/INP_PPE{,_E}.DAP "$work"
expects 0 '' "$calcolo" PPE --cartella "$work" --data 15/03/2002
cmp "$work/OUT_PPE.DOC" "$scripts/ppe/lire.DOC" || broken=1
# How its figures came about, as text and as JSON; the report stays as it is.
"$calcolo" PPE --spiega --cartella "$work" --data 15/03/2002 >"$work/spiega" || broken=1
grep -qF 'il numero dei dati per il compenso fisso: 2 x 106.000 = 212.000 Lire' "$work/spiega" || broken=1
"$calcolo" PPE --spiega=json --cartella "$work" | grep -q '"conto": "2 x 106.000"' || broken=1
rm "$work/spiega"
expects 3 'spiega=json' "$calcolo" PPE --spiega=altro --cartella "$work"
cp "$scripts/ppe/euro_CRITERI.PER" "$work/CRITERI.PER"
cp "$work/INT_PPE.DAP" "$work/INT_PPE_E.DAP"
expects 0 '' "$calcolo" --tutti --cartella "$work" --data 15/03/2002
mkdir "$work/prima" && cp "$work"/*.* "$work/prima"
expects 0 '' "$calcolo" --tutti --cartella "$work" --data 15/03/2002
for file in "$work/prima"/*; do cmp "$file" "$work/$(basename "$file")" || broken=1; done
[ -e "$work/OUT_PPE_E.DOC" ] || broken=1

# The sample notes that an installation brings.
mkdir "$work/esempi" && cp "$scripts"/../../data/*.CFG "$scripts"/../../data/sample/* "$work/esempi"
expects 0 '' "$calcolo" --tutti --cartella "$work/esempi"

# The worked examples of the manual are these notes: each result stands in their explanations.
for note in ppe:PPE coa:COA esl:ESL pdl:PDL agp:AGP inc:INC stc:STC geo:GEO sicurezza:SC1 \
  collaudo_statico:CS1 pes:PES rim:RIM rpa:RPA sup:SUP; do
  code=${note#*:} euro=()
  [ "$code" != SUP ] || euro=(--euro)
  results=$(sed -n '/^Esempio:/,/^$/p' "$tests/../docs/manuale/${note%:*}.md" | tr '\n' ' ' |
    grep -oE '= [0-9.]*[0-9](,[0-9]+)?' | tr -d '= ')
  [ -n "$results" ] || { echo "NON VALE: nessun esempio di $code"; broken=1; }
  "$calcolo" "$code" "${euro[@]}" --spiega --cartella "$work/esempi" >"$work/spiega"
  for result in $results; do
    grep -qF -- "$result" "$work/spiega" ||
      { echo "NON VALE: $code non spiega $result del manuale"; broken=1; }
  done
done
rm "$work/spiega"

# Two lots above the limit of Table A with accounting by Table E: every step to the last Lira, done
# by hand with exact fractions.
cp "$scripts/pdl/due_lotti_INP.DAP" "$work/esempi/INP_PDL.DAP"
"$calcolo" PDL --spiega --cartella "$work/esempi" --data 15/03/2002 |
  diff "$scripts/pdl/due_lotti.spiega" - || broken=1
cp "$sample/INP_PDL.DAP" "$work/esempi"

# A note goes to another folder and is the same there; a refused one writes nothing.
mkdir "$work/altra" && cp "$scripts"/../../data/*.CFG "$work/altra"
"$calcolo" PDL --json --cartella "$work/esempi" --data 15/03/2002 >"$work/pdl.json"
expects 0 '' "$calcolo" --da-json "$work/pdl.json" --cartella "$work/altra"
expects 0 '' "$calcolo" PDL --cartella "$work/altra" --data 15/03/2002
for file in INT_PDL.DAP INP_PDL.DAP UTENTE.DAG OUT_PDL.DOC; do
  cmp "$work/esempi/$file" "$work/altra/$file" || broken=1
done
"$calcolo" PPE --csv=semplice --cartella "$work/esempi" | grep -q '^18,"ONORARI E COMPENSI",.*,212000,ITL,onorari' || broken=1
printf '{"formato": 3}' >"$work/altro.json"
expects 2 'Campo : formato' "$calcolo" --da-json "$work/altro.json" --cartella "$work/altra"
expects 2 'assente.json' "$calcolo" --da-json "$work/assente.json" --cartella "$work/altra"
expects 2 'scrivere' bash -c "'$calcolo' PPE --json --cartella '$work/esempi' >/dev/full"
expects 3 'Uso:' "$calcolo" PPE --da-json "$work/pdl.json"
expects 3 'oppure --csv=semplice' "$calcolo" PPE --csv=altro

# A note that fails does not keep the others from being made; the worst code counts.
rm "$work/INT_PPE.DAP" && ln -s INT_PPE.DAP "$work/INT_PPE.DAP" && rm "$work/OUT_PPE_E.DOC"
expects 2 'collegamento' "$calcolo" --tutti --cartella "$work"
[ -e "$work/OUT_PPE_E.DOC" ] || { echo "NON VALE: le altre parcelle non si calcolano"; broken=1; }
expects 1 "$work/assente" "$calcolo" --tutti --cartella "$work/assente"
expects 1 'NON ESISTE' "$calcolo" PPE --cartella "$(printf 'x%.0s' {1..5000})"
exit $broken
