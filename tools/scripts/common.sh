# What ./run, ./test and ./bench share; read from the project's root.

# Runs a command as root, by sudo where one is not root.
as_root() {
  if [ "$(id -u)" = 0 ]; then
    "$@"
  elif command -v sudo >/dev/null; then
    sudo "$@"
  else
    echo "This needs root or sudo: $*" >&2
    return 1
  fi
}

# install_packages [NAME...]: installs those of packages.txt, and these, that are missing.
install_packages() {
  local name missing=()
  while read -r name; do
    case "$name" in "" | "#"*) continue ;; esac
    dpkg-query -W -f '${db:Status-Status}' "$name" 2>/dev/null | grep -qx installed || missing+=("$name")
  done < <(cat packages.txt && printf '%s\n' "$@")
  [ "${#missing[@]}" -gt 0 ] || return 0
  echo "Installing: ${missing[*]}"
  as_root apt-get update -qq
  as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}"
}

# configure_and_build PRESET [TARGET...]: everything without targets; leaves the preset's build folder in `folder`.
configure_and_build() {
  case "$1" in
    release) folder=build ;;
    bench) folder=build/bench-build ;;
    *) folder=build/$1 ;;
  esac
  cmake --preset "$1" --log-level=WARNING
  shift
  cmake --build "$folder" ${@:+--target "$@"}
}
