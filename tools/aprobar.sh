#!/usr/bin/env bash
# Approves pictures that the tests compare with what the game draws, among them the help's own:
#
#     tools/aprobar.sh [NAME...]
#
# NAME is a picture's file name without ".png" and may hold wildcards; without any, all pictures that
# differ are approved. Look at them before you commit them.
set -u
cd "$(dirname "$(readlink -f "$0")")/.." || exit 1
. tools/construir.sh

configurado release test_retratos || configurar release || exit 1
compilar release test_retratos || exit 1
CORVANDA_APROBAR=${*:-'*'} QT_QPA_PLATFORM=offscreen build/release/bin/test_retratos --gtest_brief=1
estado=$?
git status --short -- '*.png'
exit $estado
