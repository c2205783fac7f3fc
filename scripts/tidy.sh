#!/usr/bin/env bash
# Checks every source with clang-tidy after the rules in .clang-tidy: scripts/tidy.sh
# Sources of one folder that are compiled alike are read together, which saves most of the time: the headers are read once
# for all of them.
# A group that passed is not looked at again until a source, a header, the flags or the rules have changed.
set -euo pipefail
# shellcheck source=scripts/common.sh
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"
packages+=(clang clang-tidy)
use_preset tidy # configured only: clang cannot read the precompiled headers of g++
commands="$build/compile_commands.json"
groups="$build/groups"
known="$(ccache --get-config cache_dir)/tidy"
rules="$(cat "$root/.clang-tidy"; clang-tidy --version)"
export root build commands groups known rules

# flags_of FILE: how it is compiled, as words for the shell, without the compiler, the file and the output.
flags_of() {
    grep -F -- "-c $1\"" "$commands" | head -n 1 |
        sed -e 's/^ *"command": "[^ ]* //' -e 's/ -o [^ ]* -c [^ ]*",$//' -e 's/\\\(["\\]\)/\1/g'
}
# hash_of SOURCE FLAG...: of all that the check sees. Comments count, for they can switch rules off; the folder's own place
# does not.
hash_of() {
    local source="$1"
    shift
    {
        printf '%s\n' "$rules" "$@"
        g++ "$@" -E -C "$source"
    } | sed "s#$root/##g" | sha256sum | cut -d ' ' -f 1
}
# check_group FILE...: sources that are compiled alike. Where they cannot be read together, because two of them
# use a name for different things, each half is tried.
check_group() {
    local group flags=() hash half
    group="$groups/$(printf '%s\n' "$@" | sha256sum | cut -c 1-16).cpp"
    printf '#include "%s" // NOLINT(bugprone-suspicious-include)\n' "$@" >"$group"
    eval "flags=($(flags_of "$1"))"
    hash="$(hash_of "$group" "${flags[@]}")"
    if [[ -e "$known/$hash.passed" ]]; then
        return
    fi
    half="$(($# / 2))"
    if ((half > 0)) && { [[ -e "$known/$hash.apart" ]] || ! clang++ "${flags[@]}" -w -fsyntax-only "$group" 2>/dev/null; }; then
        touch "$known/$hash.apart"
        local status=0
        check_group "${@:1:half}" || status=1
        check_group "${@:half+1}" || status=1
        return "$status"
    fi
    # It counts what it suppressed in the headers of others, which is no news.
    if ! clang-tidy --quiet "$group" -- "${flags[@]}" 2> >(grep -vE '^[0-9]+ warnings?.* generated' >&2); then
        printf 'failed in: %s\n' "${*#"$root"/}"
        return 1
    fi
    touch "$known/$hash.passed"
}
export -f flags_of hash_of check_group

install_packages
configure
rm -rf "$groups"
mkdir -p "$groups" "$known"
find "$known" -type f -mtime +60 -delete
mapfile -t files < <(sed -n 's/^ *"file": "\(.*\)",\?$/\1/p' "$commands" | grep -vE "^$build/" | sort -u)
say "checking ${#files[@]} sources with clang-tidy"
declare -A members
for file in "${files[@]}"; do
    alike="$(dirname "$file") $(flags_of "$file")"
    members["$alike"]+=" $file"
done
# Twelve to a group, so that there is work for every core.
for alike in "${!members[@]}"; do
    xargs -n 12 <<<"${members[$alike]}"
done | sort >"$groups/list"
xargs -P "$(nproc)" -L 1 bash -c 'set -o pipefail; check_group "$@"' check <"$groups/list"
