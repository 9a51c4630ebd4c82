# SPDX-FileCopyrightText: 2026 Norvale
# SPDX-License-Identifier: GPL-3.0-or-later
#
# For every script: prints the comment at the script's head when --help is asked for; to be sourced first.
# shellcheck shell=bash

describe() { sed -n '5,${/^#/!q;s/^# \{0,1\}//p}' "$0"; }

usage() { # ends the script, for arguments that it does not know
    describe | sed -n '/^usage:/,$p' >&2
    exit 2
}

if [ "${1:-}" = --help ]; then
    describe
    exit
fi
