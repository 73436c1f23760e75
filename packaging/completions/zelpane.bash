# SPDX-License-Identifier: GPL-3.0-or-later
# Completion of zelpane's command line for bash.
_zelpane() {
    local cur prev words cword
    _init_completion || return
    case $prev in
    --script | --watermark)
        _filedir
        return
        ;;
    --shard)
        COMPREPLY=($(compgen -W 'auto/' -- "$cur"))
        compopt -o nospace
        return
        ;;
    --strip)
        COMPREPLY=($(compgen -W 'private' -- "$cur"))
        return
        ;;
    --place)
        COMPREPLY=($(compgen -W 'lower-left lower-right upper-left upper-right centre' -- "$cur"))
        return
        ;;
    --set | --fit | --at | --relative | --tile | --turn | --opacity | --jobs)
        return
        ;;
    esac
    local options='--new --open --image-processor --script --show --offscreen --no-start-choice --offer-recovery --help --version'
    [ "$cword" -eq 1 ] && options+=' --batch --thumbnail --decode'
    if [ "${words[1]}" = --batch ] && [ "$cword" -gt 1 ]; then
        options='--tiff --jpeg --script --set --fit --watermark --at --place --relative --tile --turn --opacity --strip --jobs --shard --keep-damaged --skip-existing --dry-run --help'
    fi
    if [[ $cur == -* ]]; then
        COMPREPLY=($(compgen -W "$options" -- "$cur"))
    elif [ "${words[1]}" = --batch ]; then
        _filedir -d
    else
        _filedir
    fi
} &&
    complete -F _zelpane zelpane
