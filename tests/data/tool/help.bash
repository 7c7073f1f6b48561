# Completes command lines of fluidbench-io in bash. Made from the program's own tables.
_fluidbench_io() {
    local current=${COMP_WORDS[COMP_CWORD]} words='' files='' word
    local -a typed=()
    for word in "${COMP_WORDS[@]:1:COMP_CWORD-1}"; do
        [[ $word == '=' ]] || typed+=("$word") # of an option and its value in one
    done
    [[ $current != '=' ]] || current=''
    case "${typed[*]}" in
    '' | help) words='deck blackoil compositions kvalues thermal depth envelope dfa mfl check help --version' ;;
    deck | 'help deck') words='show convert diff' ;;
    blackoil | 'help blackoil') words='show convert diff plot' ;;
    compositions | 'help compositions') words='show' ;;
    kvalues | 'help kvalues') words='show convert diff plot' ;;
    thermal | 'help thermal') words='show convert' ;;
    depth | 'help depth') words='show convert plot' ;;
    envelope | 'help envelope') words='show convert plot' ;;
    dfa | 'help dfa') words='show convert' ;;
    mfl | 'help mfl') words='show' ;;
    'deck show'*' --from-units') words='auto metric field' ;;
    'deck show'*' --show-units') words='metric field' ;;
    'deck show'*) words='--from-units --show-units --all --verbose --json --csv --strict' files=yes ;;
    'deck convert'*' --to-units') words='metric field' ;;
    'deck convert'*' --from-units') words='auto metric field' ;;
    'deck convert'*) words='--to-units --from-units --temperature --runspec --verbose --strict' files=yes ;;
    'deck diff'*' --from-units') words='auto metric field' ;;
    'deck diff'*' --show-units') words='metric field' ;;
    'deck diff'*) words='--tolerance --from-units --show-units --json --strict' files=yes ;;
    'blackoil show'*' --from-units') words='auto metric field' ;;
    'blackoil show'*' --show-units') words='metric field' ;;
    'blackoil show'*) words='--from-units --show-units --all --json --csv --strict' files=yes ;;
    'blackoil convert'*' --to') words='keywords csv' ;;
    'blackoil convert'*' --to-units') words='metric field' ;;
    'blackoil convert'*' --from-units') words='auto metric field' ;;
    'blackoil convert'*' --tables') words='auto live-wet live-dry dead-wet dead-dry' ;;
    'blackoil convert'*) words='--to --to-units --from-units --region --tables --high-precision --strict' files=yes ;;
    'blackoil diff'*' --from-units') words='auto metric field' ;;
    'blackoil diff'*' --show-units') words='metric field' ;;
    'blackoil diff'*) words='--tolerance --from-units --show-units --json --strict' files=yes ;;
    'blackoil plot'*' --show-units') words='metric field' ;;
    'blackoil plot'*' --from-units') words='auto metric field' ;;
    'blackoil plot'*) words='--show-units --from-units --title --size --x-range --strict' files=yes ;;
    'compositions show'*' --from-units') words='auto metric field' ;;
    'compositions show'*' --show-units') words='metric field' ;;
    'compositions show'*) words='--from-units --show-units --all --json --csv --strict' files=yes ;;
    'kvalues show'*' --from-units') words='auto metric field' ;;
    'kvalues show'*' --show-units') words='metric field' ;;
    'kvalues show'*) words='--from-units --show-units --all --json --csv --strict' files=yes ;;
    'kvalues convert'*' --to') words='keywords csv' ;;
    'kvalues convert'*' --to-units') words='metric field' ;;
    'kvalues convert'*' --from-units') words='auto metric field' ;;
    'kvalues convert'*) words='--to --to-units --from-units --high-precision --strict' files=yes ;;
    'kvalues diff'*' --from-units') words='auto metric field' ;;
    'kvalues diff'*' --show-units') words='metric field' ;;
    'kvalues diff'*) words='--tolerance --from-units --show-units --json --strict' files=yes ;;
    'kvalues plot'*' --show-units') words='metric field' ;;
    'kvalues plot'*' --from-units') words='auto metric field' ;;
    'kvalues plot'*) words='--show-units --from-units --title --size --x-range --y-range --strict' files=yes ;;
    'thermal show'*' --from-units') words='auto metric field' ;;
    'thermal show'*) words='--from-units --json --csv --strict' files=yes ;;
    'thermal convert'*' --to') words='keywords csv' ;;
    'thermal convert'*' --to-units') words='metric field' ;;
    'thermal convert'*' --from-units') words='auto metric field' ;;
    'thermal convert'*) words='--to --to-units --from-units --high-precision --strict' files=yes ;;
    'depth show'*' --from-units') words='auto metric field' ;;
    'depth show'*' --show-units') words='metric field' ;;
    'depth show'*) words='--from-units --show-units --all --json --csv --strict' files=yes ;;
    'depth convert'*' --table') words='compositions saturation ratios' ;;
    'depth convert'*' --to') words='keywords csv' ;;
    'depth convert'*' --to-units') words='metric field' ;;
    'depth convert'*' --from-units') words='auto metric field' ;;
    'depth convert'*) words='--table --to --to-units --from-units --strict' files=yes ;;
    'depth plot'*' --show-units') words='metric field' ;;
    'depth plot'*' --from-units') words='auto metric field' ;;
    'depth plot'*) words='--show-units --from-units --contact --title --size --y-range --strict' files=yes ;;
    'envelope show'*' --show-units') words='metric field' ;;
    'envelope show'*) words='--show-units --json --csv --strict' files=yes ;;
    'envelope convert'*' --to') words='comma tab' ;;
    'envelope convert'*) words='--to --strict' files=yes ;;
    'envelope plot'*' --show-units') words='metric field' ;;
    'envelope plot'*) words='--show-units --title --size --x-range --y-range --strict' files=yes ;;
    'dfa show'*' --show-units') words='metric field' ;;
    'dfa show'*) words='--ft --show-units --all --json --csv --strict' files=yes ;;
    'dfa convert'*' --to-units') words='metric field' ;;
    'dfa convert'*) words='--ft --to-units --strict' files=yes ;;
    'mfl show'*' --show-units') words='metric field' ;;
    'mfl show'*) words='--show-units --all --json --csv --strict' files=yes ;;
    'check'*' --format') words='deck blackoil compositions kvalues thermal depth envelope dfa mfl' ;;
    'check'*' --from-units') words='auto metric field' ;;
    'check'*) words='--format --from-units --strict' files=yes ;;
    esac
    if [[ -n $files && $current != -* ]]; then
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <(compgen -f -- "$current")
    else
        mapfile -t COMPREPLY < <(compgen -W "$words" -- "$current")
    fi
}
complete -F _fluidbench_io fluidbench-io
