# Sourced by ./play and ./check: installs the Debian packages that are missing, and says so.
# Nothing is touched when all are there.

# What playing needs; `pkgconf` gives pkg-config.
packages=(
  g++ cmake ninja-build ccache pkgconf
  libsdl2-dev libsdl2-ttf-dev fonts-liberation
  libavformat-dev libavcodec-dev libavutil-dev libopenal-dev
  libcli11-dev nlohmann-json3-dev libpng-dev
  librsvg2-bin espeak-ng ffmpeg python3
)
# What only checking needs: who plays doesn't wait for these.
check_packages=(
  libgtest-dev libgmock-dev strace
  clang libc++-dev libc++abi-dev clang-format clang-tidy pyflakes3 pycodestyle
)
# What only clean systems need, `./check fresh`.
fresh_packages=(debootstrap)

say() { printf '%s\n' "== $*"; }

# missing_packages PACKAGE...: those that are not installed, one a line.
missing_packages() {
  local installed package
  # dpkg-query fails when it knows a package not at all: that is an answer, not an error.
  installed=$({ dpkg-query -W -f='${db:Status-Status} ${Package}\n' "$@" 2>/dev/null ||
                true; } | sed -n 's/^installed //p')
  for package in "$@"; do
    grep -qxF -- "$package" <<<"$installed" || printf '%s\n' "$package"
  done
}

# install_missing_packages PACKAGE...
install_missing_packages() {
  local missing as_root=()
  if ! command -v dpkg-query >/dev/null; then
    say "This is no Debian system: install the counterparts of: $*"
    return 0
  fi
  mapfile -t missing < <(missing_packages "$@")
  if ((${#missing[@]} == 0)); then
    say "All needed packages are installed"
    return 0
  fi
  if ((EUID != 0)); then
    if ! command -v sudo >/dev/null; then
      say "Missing packages, and neither root nor sudo to install them. Run as root:"
      printf '   apt-get install --no-install-recommends %s\n' "${missing[*]}"
      return 1
    fi
    as_root=(sudo)
  fi
  say "Installing with apt-get${as_root:+ (sudo may ask for your password)}: ${missing[*]}"
  "${as_root[@]}" apt-get -q update &&
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
      apt-get -q -y install --no-install-recommends "${missing[@]}"
}
