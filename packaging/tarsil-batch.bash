# SPDX-License-Identifier: Apache-2.0
# bash completion for tarsil-batch. Commands and options come from the program's own help, so that
# they are always those of the installed version.

_tarsil_batch_words() {
    tarsil-batch "$@" --help 2>/dev/null | sed -n 's/^  \(--[a-z-]*\|[a-z]*\) *.*/\1/p'
}

_tarsil_batch() {
    local word=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
    local command=${COMP_WORDS[1]}
    COMPREPLY=()
    if ((COMP_CWORD == 1)); then
        mapfile -t COMPREPLY < <(compgen -W "$(_tarsil_batch_words)" -- "$word")
        return
    fi
    if [[ $word == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$(_tarsil_batch_words "$command")" -- "$word")
        return
    fi
    compopt -o filenames
    local pattern
    case $previous in
        --aircraft) pattern='!*.inp' ;;
        --output) pattern='' ;;
        --palette)
            compopt +o filenames
            mapfile -t COMPREPLY < <(compgen -W 'standard colour-blind line-styles' -- "$word")
            return
            ;;
        --format)
            mapfile -t COMPREPLY < <(compgen -W "emf svg pdf png" -- "$word")
            return
            ;;
        *)
            case $command in
                import) pattern='' ;;
                document) pattern='!*.tsw' ;;
                convert | track) pattern='!*.@(evm|ev2)' ;;
                *) pattern='!*.@(evm|ev2|tsw)' ;;
            esac
            ;;
    esac
    mapfile -t COMPREPLY < <(
        shopt -s extglob
        compgen -d -- "$word"
        if [[ -n $pattern ]]; then compgen -f -X "$pattern" -- "$word"; else compgen -f -- "$word"; fi
    )
}

complete -F _tarsil_batch tarsil-batch
