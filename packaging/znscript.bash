# SPDX-License-Identifier: GPL-3.0-or-later
# Completion of znscript for bash.
_znscript()
{
    local current=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} options
    local encodings='utf-8 utf-16le utf-16be utf-32le utf-32be windows-1252'
    COMPREPLY=()
    if ((COMP_CWORD == 1)); then
        mapfile -t COMPREPLY < <(compgen -W 'expand batches convert detect --help --version' -- "$current")
        return
    fi
    case $before in
        --to | --encoding) options=$encodings ;;
        --eol) options='lf crlf cr' ;;
        --output) mapfile -t COMPREPLY < <(compgen -f -- "$current"); return ;;
        --path) mapfile -t COMPREPLY < <(compgen -d -- "$current"); return ;;
        --define | --language | --separator | --terminator) return ;;
        *)
            if [[ $current != -* ]]; then
                mapfile -t COMPREPLY < <(compgen -f -- "$current")
                return
            fi
            case ${COMP_WORDS[1]} in
                expand) options='--path --script-folder --strict --define --encoding --output --language --mark --eol --help' ;;
                batches) options='--language --separator --terminator --help' ;;
                convert) options='--to --mark --eol --help' ;;
                *) options=--help ;;
            esac
            ;;
    esac
    mapfile -t COMPREPLY < <(compgen -W "$options" -- "$current")
}
complete -o filenames -F _znscript znscript
