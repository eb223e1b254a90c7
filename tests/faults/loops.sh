# Fault loops: every file-system call of a command is made to fail, or the program is killed at it, the
# first time, the second time... until the call is no longer reached. After a kill each file is the old
# one or the new one, whole, and the same command then works. After an error there is the message with
# its reason, the file that it names is the old one, and nothing is left beside.
[ ! -d /dev/shm ] || export TMPDIR=/dev/shm  # thousands of folders
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"
command -v strace >/dev/null || skip "manca strace"
strace -o /dev/null true 2>/dev/null || skip "non è permesso seguire un processo (ptrace)"

readonly old=$work/old new=$work/new at=$work/at
errors="ENOSPC EIO EROFS"
most=100000  # of each call, how many in a row fail
# Calls that change nothing: a disk that is full or closed to writing does not fail them, and a program
# killed at one leaves what it leaves when killed at the next one that changes something.
readonly looks="read|pread64|lseek|close|.*stat.*|f?access.*|getdents64|fcntl|flock|ioctl"

# Each file of a folder with the sum of its contents.
sums() { (cd "$1" && find . -type f -not -path '*/.orm2002-*' -exec cksum {} +); }

# What a command may leave, from the folders of before, of after, and of whole states between.
declare -A may_hold may_lack kept_before ever
new_folders=""
learn_states() {
  local state sum size file
  may_hold=() may_lack=() kept_before=() ever=()
  for state in "$old" "$new" "$work"/state-*; do
    [ -d "$state" ] || continue
    while read -r sum size file; do
      may_hold["$file $sum $size"]=1
      [ "$state" != "$old" ] || [[ $file != */storico/* ]] || kept_before["${file##*/} $sum $size"]=1
    done < <(sums "$state")
  done
  for file in $(for state in "$old" "$new" "$work"/state-*; do
    if [ -d "$state" ]; then (cd "$state" && find . -type f -not -path '*/storico/*'); fi
  done | sort -u); do
    for state in "$old" "$new" "$work"/state-*; do
      if [ -d "$state" ] && [ ! -e "$state/$file" ]; then may_lack[$file]=1; fi
    done
    ever["$file"]=1
  done
  new_folders=$(cd "$new" && find . -mindepth 1 -type d -not -path '*/storico*' | while read -r file; do
    [ -d "$old/$file" ] || echo "$file"
  done)
}

# File by file: old, new, or another whole state that the command may leave. In a folder of jobs a job
# that was not there is not there, or whole. A generation is what some file of its name held, whole.
check_whole() {
  local file sum size named
  declare -A present=()
  for file in $new_folders; do
    [ ! -d "$at/$file" ] || same_files "$new/$file" "$at/$file" || breaks "$1: $file non è intero"
  done
  while read -r sum size file; do
    present[$file]=1
    [ -z "${may_hold["$file $sum $size"]:-}" ] || continue
    if [[ $file == */storico/* ]]; then
      [ -z "${kept_before["${file##*/} $sum $size"]:-}" ] || continue
      named=${file/storico\//}
      [[ $named =~ ^(.*)\.[-0-9_]+(\.[A-Z]*)$ ]] && named=${BASH_REMATCH[1]}${BASH_REMATCH[2]}
      [ -z "${may_hold["$named $sum $size"]:-}" ] || continue
    fi
    breaks "$1: $file non è intero"
  done < <(sums "$at")
  for file in "${!ever[@]}"; do
    [ -n "${present[$file]:-}" ] || [ -n "${may_lack[$file]:-}" ] || breaks "$1: $file manca"
  done
}

# What a person sees of two folders is the same.
same_files() { diff -rq -x storico -x '.orm2002-*' "$1" "$2" >/dev/null; }

check_error() {
  local code=$1 where=$2 named  # and the program
  check_whole "$where"
  if [ -n "$(find "$at" -name '.orm2002-*')" ]; then breaks "$where: resta un file a metà"; fi
  if [ "$code" = 0 ]; then
    [ -s "$work/told" ] && return  # told before the command, which went on
    same_files "$new" "$at" || breaks "$where: nessun messaggio, ma i file non sono i nuovi"
    return
  fi
  [ "$code" = 2 ] || breaks "$where: esce con $code"
  grep -q '^File : ' "$work/told" || breaks "$where: il messaggio non nomina il file"
  grep -q 'disco\|Errore' "$work/told" || breaks "$where: il messaggio non dice la ragione"
  grep -q 'I dati sono scritti' "$work/told" && return
  if [ "$3" = "$desk" ]; then
    same_files "$old" "$at" || breaks "$where: i file non sono i vecchi"
    return
  fi
  named=$(sed -n 's/^File : //p' "$work/told" | head -1)
  [ -n "$named" ] || return
  if [ -e "$new/$named" ] && ! cmp -s "$old/$named" "$new/$named" && cmp -s "$new/$named" "$at/$named"; then
    breaks "$where: $named è nuovo malgrado il messaggio"
  fi
}

# Follows the command: from its start, or a window's save from its own beginning. A window's program
# starts strace itself, which ends after it: hence the pipe.
traced() {
  if [ "$1" = "$desktop" ] || [ "$1" = "$desk" ]; then
    ORM_STRACE="-qq ${options[*]}" "$@" 2>"$work/told" | cat >/dev/null
    return "${PIPESTATUS[0]}"
  fi
  strace -f "${options[@]}" "$@" >/dev/null 2>"$work/told"
}

# What is done to the call, with strace's words for it; false when the call was not reached.
run_with() {
  local call=$1 fault=$2 n=$3
  rm -rf "$at" && cp -a "$old" "$at"
  tried=$((tried + 1))
  # The braces keep bash from telling of every program that was killed.
  {
    options=(-o "$work/trace" -e trace="$call" -e inject="$call:$fault:when=$n")
    traced "${run[@]}"
    code=$?
  } 2>/dev/null
  grep -q 'INJECTED\|killed by SIGKILL' "$work/trace"
}

loop() {
  local title=$1 call n error
  shift
  run=("$@")
  rm -rf "$new" && cp -a "$old" "$new" && rm -rf "$at" && cp -a "$old" "$at"
  # The calls that a run without faults makes; memory and the start of the program are no saves.
  options=(-o "$work/trace" -e trace=%file,%desc,flock,fsync,fdatasync,fchmod)
  traced "${run[@]}" || breaks "$title: senza guasti esce con $?: $(cat "$work/told")"
  rm -rf "$new" && cp -a "$at" "$new"
  learn_states
  local calls
  calls=$(grep -o '^[0-9]* *[a-z0-9_]*(' "$work/trace" | grep -o '[a-z_][a-z0-9_]*' | sort -u |
    grep -v -x -e execve -e mmap -e munmap -e mprotect -e readlink -e readlinkat -e poll -e ppoll -e inotify_add_watch -e inotify_init1 -e inotify_rm_watch)
  for call in $calls; do
    for ((n = 1; n <= most; n++)); do
      [[ $call =~ ^($looks)$ ]] && break
      run_with "$call" signal=KILL $n || break
      check_whole "$title, interrotto a $call $n"
      "${run[@]}" >/dev/null 2>&1 || breaks "$title, dopo l'interruzione a $call $n: esce con $?"
      same_files "$new" "$at" || breaks "$title, dopo l'interruzione a $call $n: non riparte"
    done
    for error in $([[ $call =~ ^($looks)$ ]] && echo EIO || echo "$errors"); do
      for ((n = 1; n <= most; n++)); do
        run_with "$call" "error=$error" $n || break
        check_error $code "$title, $error a $call $n" "${run[0]}"
      done
    done
    reached="$reached$call "
  done
}
reached=""

finish_loops() {
  echo "chiamate: $(echo "$reached" | tr ' ' '\n' | sort -u | tr '\n' ' ')"
  finish
}
