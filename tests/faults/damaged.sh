#!/bin/bash
# Every file that a calculation reads, damaged in every way: the run-time failure with its exit code,
# a message that names the file (and the field, where the file is one of text), and nothing in the
# folder changed.
source "$(dirname "$0")/lib.sh"
readonly at=$work/at whole=$work/whole

# damage KIND FILE
damage() {
  case $1 in
    empty) : >"$2" ;;
    truncated) head -c $(($(stat -c %s "$2") / 2)) "$2" >"$work/cut" && cp "$work/cut" "$2" ;;
    overlong) printf '"altro",1\r\n' >>"$2" ;;
    quote_not_closed) sed -i '1s/^/"/' "$2" ;;
    utf8) sed -i $'0,/"/s/"/"\xc3\xa8/' "$2" ;;
    utf8_with_mark) sed -i $'1s/^/\xef\xbb\xbf/' "$2" ;;
    utf16) iconv -f WINDOWS-1252 -t UTF-16 "$2" >"$work/cut" && cp "$work/cut" "$2" ;;
    binary) head -c 3000 "$calcolo" >"$2" ;;
    zeros) head -c 3000 /dev/zero >"$2" ;;
    huge) truncate -s 9M "$2" ;;
    folder) rm "$2" && mkdir "$2" ;;
    pipe) rm "$2" && mkfifo "$2" ;;
    link_to_itself) rm "$2" && ln -s "$(basename "$2")" "$2" ;;
    link_to_nowhere) rm "$2" && ln -s /orm2002/assente "$2" ;;
    device) rm "$2" && ln -s /dev/zero "$2" ;;
  esac
}

sample_folder "$whole"
readonly no_files="folder pipe link_to_itself link_to_nowhere device"
for file in UTENTE.DAG INT_PPE.DAP INP_PPE.DAP CRITERI.PER OUT_PPE.DOC; do
  kinds="empty truncated overlong quote_not_closed utf8 utf8_with_mark utf16 binary zeros huge"
  [ $file != OUT_PPE.DOC ] || kinds=  # whatever a report holds, a new one takes its place
  for kind in $kinds $no_files; do
    rm -rf "$at" && cp -r "$whole" "$at"
    damage $kind "$at/$file"
    before=$(ls -la --time-style=full-iso "$at")
    tried=$((tried + 1))
    told=$(timeout 5 "$calcolo" PPE --cartella "$at" 2>&1 >/dev/null)
    code=$?
    [ $code = 2 ] || breaks "$file $kind: esce con $code: $told"
    grep -q "^File : $file" <<<"$told" || breaks "$file $kind: il messaggio non nomina il file: $told"
    case " huge $no_files " in
      *" $kind "*) ;;
      *) grep -q '^Campo : ' <<<"$told" || breaks "$file $kind: il messaggio non nomina il campo: $told" ;;
    esac
    [ "$before" = "$(ls -la --time-style=full-iso "$at")" ] || breaks "$file $kind: la cartella è cambiata"
  done
done

# The viewer takes no such thing for a report, nor puts a copy in its place.
readonly viewer=$(dirname "$calcolo")/orm2002-visore
[ -z "$desktop" ] || for kind in $no_files; do
  for words in "--utf8 COPIA.txt OUT_PPE.DOC" "--pdf OUT_PPE.DOC UTENTE.DAG" "--pdf UTENTE.DAG UTENTE.DAG"; do
    rm -rf "$at" && cp -r "$whole" "$at"
    damage $kind "$at/OUT_PPE.DOC"
    before=$(ls -la --time-style=full-iso "$at")
    tried=$((tried + 1))
    told=$(cd "$at" && timeout 5 "$viewer" $words 2>&1)
    code=$?
    [ $code = 1 ] || breaks "visore $words, $kind: esce con $code: $told"
    [ "$before" = "$(ls -la --time-style=full-iso "$at")" ] || breaks "visore $words, $kind: la cartella è cambiata"
  done
done

# A file that is not there ends the command with the program's own message.
for file in UTENTE.DAG INT_PPE.DAP INP_PPE.DAP; do
  rm -rf "$at" && cp -r "$whole" "$at" && rm "$at/$file"
  before=$(picture "$at")
  tried=$((tried + 1))
  told=$("$calcolo" PPE --cartella "$at" 2>&1 >/dev/null)
  code=$?
  [ $code = 1 ] || breaks "senza $file: esce con $code"
  grep -q 'NON ESISTE' <<<"$told" || breaks "senza $file: $told"
  [ "$before" = "$(picture "$at")" ] || breaks "senza $file: la cartella è cambiata"
done
finish
