# Sourced by ./run, ./test and .ci/run: install_packages installs what is missing of the named Debian packages.

build_packages=(g++ cmake ninja-build qt6-base-dev qt6-svg-dev libicu-dev libfontconfig-dev libqpdf-dev
  fonts-liberation)
test_packages=(libgtest-dev poppler-utils fonts-dejavu-core  # the font of the screenshots
  python3 xvfb xauth dbus-daemon at-spi2-core python3-gi gir1.2-atspi-2.0)  # a screen reader in front of the program
bench_packages=(libbenchmark-dev mawk)

install_packages() {
  local missing=() package
  for package in "$@"; do
    [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null)" = installed ] || missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return
  local as_root=()
  [ "$(id -u)" -eq 0 ] || as_root=(sudo)
  echo "Installing ${missing[*]}"
  "${as_root[@]}" apt-get update -qq
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}"
}

# configure_and_build PRESET [CMAKE --build ARGUMENT...]
configure_and_build() {
  local preset=$1; shift
  cmake --preset "$preset" >/dev/null
  cmake --build --preset "$preset" "$@"
}
