# Completion of tarn(1) for bash.
_tarn() {
    local cur prev words cword commands command=
    _init_completion -s || return
    commands='decode stats diff encode describe help'
    local word
    for word in "${words[@]:1:cword-1}"; do
        [[ $word != -* && " $commands " == *" $word "* ]] && command=$word && break
    done
    case $prev in
    --from) COMPREPLY=($(compgen -W 'auto hex raw framed capture' -- "$cur")) && return ;;
    --color) COMPREPLY=($(compgen -W 'auto always never' -- "$cur")) && return ;;
    --schema) COMPREPLY=($(compgen -W 'duckdb spark' -- "$cur")) && return ;;
    --pcapng | --raw-output) _filedir && return ;;
    --only | --not | --where | --fields | --port | --link) return ;;
    esac
    local input='--from --port --link' filter='--only --not --where --errors' options=
    case $command in
    '') COMPREPLY=($(compgen -W "$commands --help --version" -- "$cur")) && return ;;
    help) COMPREPLY=($(compgen -W "$commands" -- "$cur")) && return ;;
    decode) options="$input $filter --json --pretty --summary --hex --fields --pcapng --readable --redact --raw --color" ;;
    stats) options="$input $filter --per-second" ;;
    diff) options=$input ;;
    encode) options='--raw --raw-output --force' ;;
    describe) options='--json --schema' ;;
    esac
    if [[ $cur == -* ]]; then
        COMPREPLY=($(compgen -W "$options --help" -- "$cur"))
    elif [[ $command == describe ]]; then
        # The protocol's own names, which stand first in their lines.
        COMPREPLY=($(compgen -W "$(tarn describe 2>/dev/null | awk '/^  / { print $1 ~ /^[0-9]/ ? $2 : $1 }')" -- "$cur"))
    else
        _filedir
    fi
}
complete -F _tarn tarn
