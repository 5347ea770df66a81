# Completes the options and files of the programs that have any.
_orvane() {
  local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} options="--help --version"
  case $1 in
    *orvane-batch) options+=" --keep-going --pdf --contact-sheet --with --jobs" ;;
    *orvane-check) options+=" --format --sheet" ;;
    *orvane-launch) options+=" --session" ;;
    *orvane-session) options+=" --pdf --shorten" ;;
  esac
  if [[ $1 == *orvane-launch ]]; then
    mapfile -t COMPREPLY < <(compgen -W "$options" -- "$word")
  elif [[ $before == --format ]]; then
    mapfile -t COMPREPLY < <(compgen -W "text json" -- "$word")
  elif [[ $word == -* ]]; then
    mapfile -t COMPREPLY < <(compgen -W "$options" -- "$word")
  else
    compopt -o filenames
    mapfile -t COMPREPLY < <(if [[ $1 == *-check ]]; then compgen -d -- "$word"; else compgen -f -- "$word"; fi)
  fi
}
complete -F _orvane orvane-batch orvane-check orvane-launch orvane-session
