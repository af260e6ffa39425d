#!/usr/bin/env bash
# Both commands from nothing, in clean roots of a Debian version. Called by ./check fresh.
#
#   fresh.sh 12|13 [root|user]... [-- STEP...]
#
# A root holds Debian's smallest system and what is committed here. In it `./play --build` and
# `./check STEP...` (all steps without any) run as root, and as an ordinary user with sudo; then
# `./play --build` once more, where nothing is left to do. The roots stand in a folder of their own,
# $QUENDLE_FRESH_DIR or /var/tmp/quendle-fresh; the next run makes them anew from a kept base.
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/setup.sh

declare -A codenames=([12]=bookworm [13]=trixie)
version=${1-}
codename=${codenames[${version:-none}]-}
fresh=${QUENDLE_FRESH_DIR:-/var/tmp/quendle-fresh}

usage() {
  printf 'usage: ./check fresh 12|13 [root|user]... [-- STEP...]\n'
  exit 2
}

# The first address from which this machine takes Debian itself.
mirror() {
  local found
  found=$(apt-get indextargets --format '$(REPO_URI) $(ORIGIN) $(LABEL)' 'Created-By: Packages' |
    sed -n 's/ Debian Debian$//p' | head -n 1)
  printf '%s\n' "${found:-http://deb.debian.org/debian/}"
}

# The smallest system, made once; packages come from where this machine has them, with its proxies.
make_base() {
  local base=$1 address
  [[ -e $base/complete ]] && return
  say "Making the base of Debian $version ($base)"
  address=$(mirror)
  rm -rf "$base"
  eval "$(apt-config shell http_proxy Acquire::http::Proxy)"
  http_proxy=${http_proxy-} debootstrap --variant=minbase "$codename" "$base" "$address"
  printf 'deb %s %s main\n' "$address" "$codename" >"$base/etc/apt/sources.list"
  apt-config dump --format '%F "%v";%n' Acquire >"$base/etc/apt/apt.conf.d/99host"
  touch "$base/complete"
}

# Runs a script in a root, in namespaces of its own: its mounts and processes end with it.
inside() {
  local root=$1 script=$2
  cp /etc/resolv.conf "$root/etc/resolv.conf"
  mkdir -p "$fresh/$version.ccache" "$root/var/cache/ccache"
  chmod 777 "$fresh/$version.ccache"
  unshare --mount --pid --fork bash -euc '
    mount -t proc proc "$1/proc"
    mount --bind /dev "$1/dev"
    mount -t tmpfs tmpfs "$1/dev/shm"
    mount --bind "$2" "$1/var/cache/ccache"
    exec env -i PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin HOME=/root \
      LANG=C.UTF-8 CCACHE_DIR=/var/cache/ccache CCACHE_UMASK=000 ${http_proxy:+http_proxy="$http_proxy"} \
      chroot "$1" bash -euc "$3"' inside "$root" "$fresh/$version.ccache" "$script"
}

# The commands, run in the tree by whoever plays.
commands() {
  printf 'cd /srv/quendle && ./play --build && ./check %s && time ./play --build </dev/null' "$*"
}

run_as() {
  local who=$1 root=$fresh/$version.$1
  shift
  say "Debian $version as $who: a clean root ($root)"
  rm -rf "$root"
  cp -a --reflink=auto "$fresh/$version.base" "$root"
  mkdir "$root/srv/quendle"
  git archive HEAD | tar -x -C "$root/srv/quendle"
  if [[ $who == root ]]; then
    inside "$root" "$(commands "$@")"
    return
  fi
  inside "$root" "
    apt-get -q update && apt-get -q -y install --no-install-recommends sudo
    useradd --create-home --shell /bin/bash child
    printf '%s\n' 'child ALL=(ALL) NOPASSWD: ALL' 'Defaults env_keep += \"http_proxy\"' \
      >/etc/sudoers.d/child
    chown -R child: /srv/quendle
    setpriv --reuid=child --regid=child --init-groups env HOME=/home/child USER=child \
      bash -euc '$(commands "$@")'"
}

whoever=() steps=()
(($# > 0)) && shift
while (($# > 0)) && [[ $1 != -- ]]; do
  [[ $1 == root || $1 == user ]] || usage
  whoever+=("$1")
  shift
done
(($# > 0)) && steps=("${@:2}")
((${#whoever[@]} > 0)) || whoever=(root user)
[[ -n $codename ]] || usage
if ((EUID != 0)); then
  say "A clean root is made as root: run it with sudo"
  exit 2
fi
install_missing_packages "${fresh_packages[@]}"
[[ -z $(git status --porcelain) ]] || say "Only what is committed is looked at"
mkdir -p "$fresh"
make_base "$fresh/$version.base"
failed=0
for who in "${whoever[@]}"; do
  set +e # in a condition nothing would stop the first fault
  (
    set -e
    run_as "$who" "${steps[@]}"
  )
  status=$?
  set -e
  if ((status == 0)); then
    say "Debian $version as $who: ok"
  else
    say "Debian $version as $who: FAILED; its root stays: $fresh/$version.$who"
    failed=$((failed + 1))
  fi
done
printf '%s passed, %s failed\n' "$((${#whoever[@]} - failed))" "$failed"
((failed == 0))
