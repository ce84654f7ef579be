# shellcheck shell=bash
# Bash completion for orvanta, and for ./run in a clone of its repository.

# Sets kind to the kind of value of option $1; empty for an option without a value.
_orvanta_value_kind() {
  case $1 in
    --log-level) kind=levels ;;
    --scenario | --update) kind=files ;;
    --resources | --state) kind=folders ;;
    --map-url) kind=mappings ;;
    --device) kind=devices ;;
    --os-version | --time-budget | --max-download | --decode | -n | --jobs) kind=text ;;
    *) kind= ;;
  esac
}

# Sets kind to the kind of argument $2, counted from 0, of command $1.
_orvanta_argument_kind() {
  case $1:$2 in
    :*) kind=commands ;;
    notify:0 | model:1 | request:1 | replay:0 | batch:*) kind=files ;;
    model:0 | schema:0) kind=classes ;;
    request:0) kind=requests ;;
    *) kind=text ;;
  esac
}

# _orvanta_classes PATTERN: prints the classes whose line in the schema matches.
_orvanta_classes() {
  "$program" schema 2>/dev/null </dev/null | sed -n "/^ /d; /$1/ { s/ .*//; p }"
}

_orvanta() {
  local program=${1/#\~/$HOME} command='' options='' kind='' place=0 word last=''
  local words=()
  if [[ $program == ./run ]]; then
    program=build/release/Tools/orvanta/orvanta # ./run itself might build first
    if [[ ! -d Tools/orvanta ]]; then
      compopt -o default # another project's ./run
      return
    fi
  fi

  # Bash splits words at "=" and ":".
  for word in "${COMP_WORDS[@]:1:COMP_CWORD}"; do
    if ((${#words[@]})) && [[ $word == [:=]* || $last == [:=]* ]]; then
      words[-1]+=$word
    else
      words+=("$word")
    fi
    last=$word
  done
  for word in "${words[@]:0:${#words[@]}-1}"; do
    if [[ -n $kind ]]; then
      kind= # the value of the option before
    elif [[ $word == -?* ]]; then
      _orvanta_value_kind "$word"
    elif [[ -z $command ]]; then
      command=$word
    else
      ((++place))
    fi
  done
  word=${words[-1]}
  if [[ -z $kind && $word == --*=* ]]; then
    _orvanta_value_kind "${word%%=*}"
    word=${word#*=}
  elif [[ -z $kind && $word == -* ]]; then
    kind=options
  elif [[ -z $kind ]]; then
    _orvanta_argument_kind "$command" "$place"
  fi

  case $command in
    '') options='--version' ;;
    notify)
      options='--json --os-version --resources --state --map-url --scenario --time-budget --real-time
        --max-download'
      ;;
    model) options='--init --update --class-info --pretty' ;;
    schema) options='--json --markdown' ;;
    request) options='--text' ;;
    replay) options='--json --jobs' ;;
    identifier) options='-n --decode' ;;
    device) options='--all --device' ;;
  esac
  local choices=''
  case $kind in
    options) choices="$options --help --log-level" ;;
    commands) choices='notify model schema request batch replay identifier device' ;;
    classes) choices=$(_orvanta_classes .) ;;
    requests) choices=$(_orvanta_classes ' -> ') ;; # only requests have a reply
    levels) choices='0 1 2' ;;
    files) compopt -o default ;;
    folders) compopt -o dirnames ;;
    mappings) if [[ $word == *=* ]]; then compopt -o dirnames; fi ;;
    devices)
      mapfile -t COMPREPLY < <(compgen -f -W host -- "$word")
      compopt -o filenames -o default
      return
      ;;
  esac
  mapfile -t COMPREPLY < <(compgen -W "$choices" -- "${word##*[:=]}")
}

complete -F _orvanta orvanta ./run
