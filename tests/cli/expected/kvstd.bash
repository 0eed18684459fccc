# bash completion for kvstd
_kvstd() {
  local current="${COMP_WORDS[COMP_CWORD]}" command="" word words
  for word in "${COMP_WORDS[@]:1:COMP_CWORD-1}"; do
    case " show validate merge report pack unpack convert catalogue " in *" $word "*) command="$word"; break ;; esac
  done
  case "$command" in
    "") words="show validate merge report pack unpack convert catalogue --language --help --version" ;;
    show) words="--help --all --json" ;;
    validate) words="--help" ;;
    merge) words="--help -o" ;;
    report) words="--help -o --html --pdf" ;;
    pack) words="--help" ;;
    unpack) words="--help" ;;
    convert) words="--help -o --length --angle" ;;
    catalogue) words="--help --json" ;;
  esac
  # A line for each, since file names hold blanks.
  mapfile -t COMPREPLY < <(
    compgen -W "$words" -- "$current"
    [ -n "$command" ] && [ "${current#-}" = "$current" ] && compgen -f -- "$current")
}
complete -o filenames -F _kvstd kvstd
