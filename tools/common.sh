# SPDX-FileCopyrightText: 2026 Korvanta contributors
# SPDX-License-Identifier: MIT
# shellcheck shell=bash
#
# What the scripts of this folder share. They source it and then stand in the folder they work on:
# the project, or the one that KORVANTA_ROOT names (the self-test brings small folders of its own).

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
# Its reader is the script that sources this file.
# shellcheck disable=SC2034
tools="$root/tools"
root=${KORVANTA_ROOT:-$root}
cd "$root" || exit 1

# our_files [PATHSPEC...]: the files of the project, one a line: what git tracks and what is new
# and not ignored. The clone may belong to another user than the one who builds (root in a
# container), so git is told that this folder is safe. Without git's data every file counts that
# lies outside build and out.
our_files() {
    if git -c safe.directory="$root" rev-parse --is-inside-work-tree >/dev/null 2>&1; then
        git -c safe.directory="$root" ls-files --cached --others --exclude-standard -- "$@" |
            while IFS= read -r file; do
                # A tracked file that was just removed is still in the index.
                if [ -f "$file" ]; then printf '%s\n' "$file"; fi
            done
    else
        find . -type f -not -path './build/*' -not -path './out/*' -not -path './.git/*' |
            sed 's|^\./||' | match_any "$@"
    fi
}

# match_any PATTERN...: the lines that match one of the shell patterns; all of them without any.
match_any() {
    local line pattern
    while IFS= read -r line; do
        if [ $# -eq 0 ]; then printf '%s\n' "$line"; fi
        for pattern in "$@"; do
            # The pattern is meant as one: unquoted. A * crosses slashes, as in git.
            # shellcheck disable=SC2053
            if [[ $line == $pattern || $line == ${pattern%/}/* ]]; then
                printf '%s\n' "$line"
                break
            fi
        done
    done
}

# our_sources: the C++ files of the project.
our_sources() {
    our_files '*.cpp' '*.h' | LC_ALL=C sort
}

cores() {
    nproc 2>/dev/null || echo 2
}
