# What the fault scripts share. Each is called with the programs: CALCOLO SAVER DESK [DESKTOP_SAVER].
# A law that does not hold is told with its circumstances and counted; the script ends with 1.
set -uo pipefail
readonly calcolo=$1 saver=$2 desk=$3 desktop=${4:-}
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
readonly here skipped=77
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
broken=0 tried=0

breaks() {
  echo "NON VALE: $*"
  broken=$((broken + 1))
  [ $broken -lt 20 ] || exit 1
}

finish() {
  echo "$tried prove, $broken leggi non valgono"
  [ $broken -eq 0 ]
  exit
}

skip() {
  echo "SALTATO: $*"
  exit $skipped
}

# A folder with the files of the worked example in both currencies, and an older report.
sample_folder() {
  rm -rf "$1" && mkdir -p "$1"
  cp "$here"/../../data/sample/{UTENTE.DAG,INT_PPE.DAP,INP_PPE.DAP} "$1"
  cp "$here/../scripts/ppe/euro_CRITERI.PER" "$1/CRITERI.PER"
  printf '"visore","editor","pdf"\r\n' >"$1/EDITOR.PER"
  printf 'la parcella di prima\r\n' >"$1/OUT_PPE.DOC"
}

# Names and contents of a folder, to compare.
picture() { (cd "$1" && for f in *; do [ -f "$f" ] && echo "$f $(cksum <"$f")"; done); }
