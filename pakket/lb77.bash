# Completion of lb77 for bash.
_lb77() {
  local woord=${COMP_WORDS[COMP_CWORD]}
  compopt -o filenames 2>/dev/null
  if [ "${COMP_WORDS[COMP_CWORD - 1]}" = --map ]; then
    mapfile -t COMPREPLY < <(compgen -d -- "$woord")
  elif [[ $woord == -* ]]; then
    mapfile -t COMPREPLY < <(compgen -W '-h --help --version --map' -- "$woord")
  else
    mapfile -t COMPREPLY < <(
      compgen -f -X '!*.@(ged|GED|gedcom)' -- "$woord"
      compgen -d -- "$woord"
    )
  fi
}
complete -F _lb77 lb77
