# Completion of ostra-params for bash.

_ostra_params() {
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} verb=${COMP_WORDS[1]}
    local -A options=(
        [check]="--format --severity --strict --ignore --only --lint --all --quiet"
        [list]="--kind --name --json"
        [show]="--schema"
        [deps]="--reverse --dot --svg"
        [export]="--output"
        [diff]="--json"
        [report]="--output"
        [fmt]="--check --diff"
        [rename]="--dry-run --diff"
        [fix]="--dry-run"
    )
    COMPREPLY=()
    if ((COMP_CWORD == 1)); then
        mapfile -t COMPREPLY < <(compgen -W "${!options[*]} --help --version" -- "$current")
    elif [[ $previous == --format ]]; then
        mapfile -t COMPREPLY < <(compgen -W "text json sarif github" -- "$current")
    elif [[ $previous == --severity ]]; then
        mapfile -t COMPREPLY < <(compgen -W "error warning" -- "$current")
    elif [[ $previous == --@(lint|ignore|only) ]]; then # of the codes, those that people choose most
        local last=${current##*,} own="content-shared description-missing name-shared object-unused typeid-unversioned"
        [[ $previous == --lint ]] ||
            own+=" regex-refused encoding-invalid file-unreadable member-unknown constant-unknown property-unknown"
        mapfile -t COMPREPLY < <(compgen -P "${current%"$last"}" -W "$own" -- "$last")
    elif [[ $previous == --kind ]]; then
        local last=${current##*,} kinds="" help
        help=$("${COMP_WORDS[0]}" list --help 2>/dev/null) # which knows all kinds
        [[ $help =~ "all of them:"(.*)"--name" ]] && kinds=${BASH_REMATCH[1]//,/ }
        mapfile -t COMPREPLY < <(compgen -P "${current%"$last"}" -W "$kinds" -- "$last")
    elif [[ $previous == --name ]]; then
        return
    elif [[ $current == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "${options[$verb]} --help" -- "$current")
    else
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <(compgen -f -- "$current")
    fi
}

complete -F _ostra_params ostra-params
