#!/usr/bin/env bash
# Starts a cluster of three nodes on this machine, collects from four desks at once, kills a node in the middle and looks
# at what the others hold. Needs the package galera-4.
#   usage: tests/galera.sh BUILD_FOLDER
set -euo pipefail
cd "$(dirname "$0")/.."
. tools/scripts/common.sh

install_packages galera-4
KURVO_GALERA=$(dpkg-query -L galera-4 | grep '/libgalera_smm\.so$' | head -n 1)
export KURVO_GALERA QT_QPA_PLATFORM=offscreen
exec "$1/tests/galera_test"
