# Completion of lb77-cli and lb77 for bash. What can be typed is asked of the program itself.
_lb77_cli() {
  local woord=${COMP_WORDS[COMP_CWORD]} programma=${COMP_WORDS[0]} opdracht='' i plaats=0 map=()
  COMPREPLY=()
  for ((i = 1; i < COMP_CWORD; i++)); do
    case ${COMP_WORDS[i]} in
      --map) map=(--map "${COMP_WORDS[i + 1]}"); ((i++)) ;;
      --klok | --uit | --zet | --naar | --van) ((i++)) ;;
      -*) ;;
      *) if [ -z "$opdracht" ]; then opdracht=${COMP_WORDS[i]}; else ((plaats++)); fi ;;
    esac
  done
  case ${COMP_WORDS[COMP_CWORD - 1]} in
    --map) mapfile -t COMPREPLY < <(compgen -d -- "$woord"); return ;;
    --uit | --naar | --van) mapfile -t COMPREPLY < <(compgen -f -- "$woord"); return ;;
  esac
  local hulp
  if [ -z "$opdracht" ]; then
    hulp=$("$programma" --help 2>/dev/null | sed -n 's/^  \([^ ]*\).*/\1/p' | tr , ' ')
  elif [[ $woord == -* ]]; then
    hulp=$("$programma" "$opdracht" --help 2>/dev/null |
      sed -n 's/^  \(-[^ ]*\).*/\1/p' | tr , ' ')
  elif [ "$plaats" -eq 0 ] && [ "$opdracht" != speel ]; then
    hulp=$("$programma" "${map[@]}" sets 2>/dev/null | awk '{ print $1 }')
  else
    mapfile -t COMPREPLY < <(compgen -f -- "$woord")
    return
  fi
  mapfile -t COMPREPLY < <(compgen -W "$hulp" -- "$woord")
}
complete -F _lb77_cli lb77-cli

_lb77() {
  case ${COMP_WORDS[COMP_CWORD]} in
    -*) mapfile -t COMPREPLY < <(compgen -W '--help --version' -- "${COMP_WORDS[COMP_CWORD]}") ;;
    *) mapfile -t COMPREPLY < <(compgen -f -X '!*.@(ged|GED|gedcom)' -- "${COMP_WORDS[COMP_CWORD]}"
         compgen -d -- "${COMP_WORDS[COMP_CWORD]}") ;;
  esac
}
complete -o filenames -F _lb77 lb77
