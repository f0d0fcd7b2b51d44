#!/usr/bin/env bash
# Runs one batch as several shards with GNU parallel: on this machine, or on the hosts of a list that all see the
# same storage and have zelto-batch on their PATH.
#   SHARDS=8 gnu-parallel.sh SETTING OUTPUT PHOTO_OR_FOLDER... [-- OPTION_OF_ZELTO_BATCH...]
#   HOSTS=hosts.txt SHARDS=16 gnu-parallel.sh ...          hosts.txt: one "user@host" a line, as parallel takes it
# Shards that ended with status 0 are not run again when the same command is given once more with RESUME=1.
set -euo pipefail

setting=$(realpath "$1")
output=$(realpath -m "$2")
shift 2
photos=()
while [[ $# -gt 0 && $1 != -- ]]; do photos+=("$(realpath "$1")"); shift; done
[[ ${1:-} == -- ]] && shift

shards=${SHARDS:-$(nproc)}
options=(--jobs "$shards" --joblog "$output.shards.log" --line-buffer --quote)
[[ -n ${HOSTS:-} ]] && options=(--sshloginfile "$HOSTS" --joblog "$output.shards.log" --line-buffer --quote)
[[ -n ${RESUME:-} ]] && options+=(--resume-failed)

mkdir -p "$output"
seq 0 $((shards - 1)) |
    parallel "${options[@]}" "${ZELTO_BATCH:-zelto-batch}" --setting "$setting" --output "$output" \
        --shard "{}/$shards" --jobs "${JOBS_PER_SHARD:-1}" --no-progress "$@" -- "${photos[@]}"
