# Completions of quorvel for bash: commands, options, files, and the names of a file's settings.

_quorvel_offer() {
  local word=${COMP_WORDS[COMP_CWORD]//\\/} candidate
  while IFS= read -r candidate; do
    [[ $candidate == "$word"* ]] && COMPREPLY+=("$candidate")
  done
}

_quorvel_offer_files() {
  compopt -o filenames 2>/dev/null
  mapfile -t COMPREPLY < <(compgen -f -- "${COMP_WORDS[COMP_CWORD]//\\/}")
}

# The names of the settings in a file; $2 is put behind each.
_quorvel_offer_names() {
  compopt -o filenames 2>/dev/null  # parentheses are quoted, as in names of files
  _quorvel_offer < <(quorvel dump "$1" 2>/dev/null </dev/null | sed "s/ = .*/$2/")
}

_quorvel_options() {
  case $1 in
    info | get | blocks) echo '' ;;
    dump) echo '--json' ;;
    set | apply) echo '--output' ;;
    check | diff) echo '--files-from --null --recursive --threads --list' ;;
    defaults) echo '--model --cameras --name --variant --blocks --combined --firmware --output' ;;
  esac
}

_quorvel() {
  COMPREPLY=()
  local word=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} i command= file= operands=0
  for ((i = 1; i < COMP_CWORD; i++)); do
    case ${COMP_WORDS[i]} in
      -o | --output | --files-from | -j | --threads | --model | --cameras | --name | --variant | \
        --blocks | --firmware) ((i++)) ;;
      -?*) ;;
      *)
        if [[ -z $command ]]; then
          command=${COMP_WORDS[i]}
        else
          [[ $((operands++)) -gt 0 ]] || file=${COMP_WORDS[i]//\\/}
        fi
        ;;
    esac
  done
  if [[ -z $command ]]; then
    _quorvel_offer < <(printf '%s\n' info dump get set diff check defaults apply blocks --help --version)
    return
  fi
  case $previous in
    -o | --output | --files-from) _quorvel_offer_files; return ;;
    --model) _quorvel_offer < <(seq 0 20); return ;;
    --cameras) _quorvel_offer < <(printf '%s\n' 4 9 10 16); return ;;
    -j | --threads | --name | --variant | --blocks | --firmware) return ;;
  esac
  if [[ $word == -* ]]; then
    _quorvel_offer < <(printf '%s\n' $(_quorvel_options "$command") --help)
    return
  fi
  case $command in
    check | diff | apply) _quorvel_offer_files ;;
    info) [[ $operands -gt 0 ]] || _quorvel_offer_files ;;
    dump | get | blocks)
      if [[ $operands == 0 ]]; then _quorvel_offer_files; else _quorvel_offer_names "$file" ''; fi
      ;;
    set)
      if [[ $operands == 0 ]]; then
        _quorvel_offer_files
      else
        compopt -o nospace 2>/dev/null
        _quorvel_offer_names "$file" '='
      fi
      ;;
  esac
}

complete -F _quorvel quorvel
