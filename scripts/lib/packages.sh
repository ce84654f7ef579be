# shellcheck shell=bash
# The Debian packages the project needs, and the function that installs those still missing.

# shellcheck disable=SC2034  # read by the scripts that source this file
run_packages=(ca-certificates g++ cmake ninja-build libcli11-dev libcurl4-openssl-dev libgd-dev libpng-dev)
# shellcheck disable=SC2034
test_packages=(libgtest-dev libbenchmark-dev libcpp-httplib-dev)
# shellcheck disable=SC2034
check_packages=(git python3 clang clang-format clang-tidy libclang-rt-14-dev valgrind)
# shellcheck disable=SC2034
libcxx_packages=(clang-19 libc++-19-dev libc++abi-19-dev googletest)
# shellcheck disable=SC2034
wasm32_packages=(emscripten nodejs)
# shellcheck disable=SC2034
bench_packages=(libsimdjson-dev rapidjson-dev nlohmann-json3-dev)

# ensure_packages PACKAGE...: silent, and no apt call, when every package is installed.
ensure_packages() {
  local package sudo=() missing=()
  for package in "$@"; do
    if [[ $(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null) != installed ]]; then
      missing+=("$package")
    fi
  done
  ((${#missing[@]})) || return 0

  echo "Installing packages: ${missing[*]}" >&2
  ((EUID == 0)) || sudo=(sudo)
  "${sudo[@]}" apt-get update </dev/null >&2 || return
  "${sudo[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y --no-install-recommends "${missing[@]}" </dev/null >&2
}
