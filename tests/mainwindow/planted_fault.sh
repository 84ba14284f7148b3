#!/bin/sh
# A fault that is planted in the sessions of the random user is found, and told by its seed and the steps that it needs.
set -eu
random_user=$1
fail()
{
    echo "$1"
    exit 1
}

"$random_user" 5 1 12 || fail "a finding without a fault"

export RANDOM_USER_FAULT=3,9
found=$("$random_user" 5 1 12) && fail "the fault is not found: $found"
echo "$found"
for line in 'FOUND with seed 5, shrinking' 'random_user 5 --replay 3 9' 'step 9: the wait cursor was left on' \
    '1 sessions of 12 steps, 1 with a finding'; do
    printf '%s\n' "$found" | grep -qxF -e "$line" || fail "missing: $line"
done

"$random_user" 5 --replay 3 9 > /dev/null && fail "the fault does not come again"
for step in 3 9; do
    "$random_user" 5 --replay "$step" > /dev/null || fail "step $step is a finding by itself"
done
