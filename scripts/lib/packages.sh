# Sourced by the scripts: installs Debian packages that are missing, as root or through sudo.

install_missing() {
  local missing=()
  local package
  for package in "$@"; do
    if ! dpkg-query -W -f='${db:Status-Status}\n' "$package" 2>/dev/null | grep -qx installed; then
      missing+=("$package")
    fi
  done
  [ ${#missing[@]} -eq 0 ] && return 0

  local as_root=()
  if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null; then
      echo "These Debian packages are missing and neither root nor sudo is at hand: ${missing[*]}" >&2
      return 1
    fi
    as_root=(sudo)
  fi
  echo "Installing Debian packages: ${missing[*]}" >&2
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get update -q >&2
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install -q -y --no-install-recommends "${missing[@]}" >&2
}

# What building needs; what testing needs on top, which is done with two compilers, and with a third
# where public headers are concerned. The fuzz targets need the sanitizers of the second, a package
# that it only recommends, and llvm, which names the lines of a failure.
BUILD_PACKAGES=(g++ cmake ninja-build libcli11-dev nlohmann-json3-dev qt6-base-dev libgl-dev)
RUN_PACKAGES=(fonts-dejavu-core qt6-translations-l10n)
TEST_PACKAGES=(libgtest-dev clang clang-19 clang-format pkg-config python3-pip abigail-tools)
FUZZ_PACKAGES=(clang libclang-rt-dev llvm cmake ninja-build)
# What Debian packages are made with, and the bare system in which they are tried out.
PACKAGE_PACKAGES=(dpkg-dev file debootstrap pkg-config)
