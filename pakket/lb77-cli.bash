# Completion of lb77-cli for bash. What can be typed is asked of the program itself.

# The options of a list of --help that come before their value: "--map MAP".
_lb77_cli_met_waarde() {
  sed -n 's/^  \(--[a-z0-9-]*\) [A-Z].*/\1/p' <<<"$1"
}

_lb77_cli_bestanden() {
  compopt -o filenames 2>/dev/null
  mapfile -t COMPREPLY < <(compgen "$1" -- "$2")
}

# The words of $1, one a line, that begin with $2; a blank in one is quoted.
_lb77_cli_woorden() {
  local woord
  COMPREPLY=()
  while IFS= read -r woord; do
    if [ -n "$woord" ] && [[ $woord == "$2"* ]]; then COMPREPLY+=("$(printf %q "$woord")"); fi
  done <<<"$1"
}

_lb77_cli() {
  local woord=${COMP_WORDS[COMP_CWORD]} vorige=${COMP_WORDS[COMP_CWORD - 1]}
  local programma=${COMP_WORDS[0]} opdracht='' i plaats=0 map=() hulp met
  COMPREPLY=()
  hulp=$("$programma" --help 2>/dev/null)
  met=$(_lb77_cli_met_waarde "$hulp")
  for ((i = 1; i < COMP_CWORD; i++)); do
    if [ "${COMP_WORDS[i]}" = --map ]; then map=(--map "${COMP_WORDS[i + 1]}"); fi
    if grep -qxF -- "${COMP_WORDS[i]}" <<<"$met"; then
      ((++i))
    elif [[ ${COMP_WORDS[i]} == -* ]]; then
      :
    elif [ -z "$opdracht" ]; then
      opdracht=${COMP_WORDS[i]}
      hulp=$("$programma" "$opdracht" --help 2>/dev/null)
      met=$(_lb77_cli_met_waarde "$hulp")
    else
      ((++plaats))
    fi
  done
  if grep -qxF -- "$vorige" <<<"$met"; then
    case $(sed -n "s/^  $vorige \([A-Z]*\).*/\1/p" <<<"$hulp") in
      MAP) _lb77_cli_bestanden -d "$woord" ;;
      BESTAND) _lb77_cli_bestanden -f "$woord" ;;
    esac
  elif [ -z "$opdracht" ]; then
    _lb77_cli_woorden "$(sed -n 's/^  \([^ ]*\).*/\1/p' <<<"$hulp" | tr , '\n')" "$woord"
  elif [[ $woord == -* ]]; then
    _lb77_cli_woorden "$(sed -n 's/^  \(-[^ ]*\).*/\1/p' <<<"$hulp" | tr , '\n')" "$woord"
  else
    # The words of this command, in their order.
    case $(sed -n 's/^  \([A-Z]*\) .*/\1/p' <<<"$hulp" | sed -n "$((plaats + 1))p") in
      SET) _lb77_cli_woorden "$("$programma" "${map[@]}" sets 2>/dev/null | sed 's/  .*//')" "$woord" ;;
      BESTAND) _lb77_cli_bestanden -f "$woord" ;;
    esac
  fi
}
complete -F _lb77_cli lb77-cli
