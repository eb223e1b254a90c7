# Completion of orm2002-calcolo: its codes and options are read from its own help.
_orm2002_calcolo() {
  local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} help
  COMPREPLY=()
  case $before in
    --cartella)
      mapfile -t COMPREPLY < <(compgen -d -- "$word")
      compopt -o filenames
      return ;;
    --da-json)
      mapfile -t COMPREPLY < <(compgen -f -- "$word")
      compopt -o filenames
      return ;;
    --data)
      mapfile -t COMPREPLY < <(compgen -W "$(date +%d/%m/%Y)" -- "$word")
      return ;;
  esac
  help=$("${COMP_WORDS[0]}" --help 2>/dev/null | grep -oE '^  ([A-Z][A-Z0-9]{2}$|--[a-z=-]+)')
  mapfile -t COMPREPLY < <(compgen -W "$help" -- "$word")
}
complete -F _orm2002_calcolo orm2002-calcolo
