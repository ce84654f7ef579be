# shellcheck shell=bash
# Configuring and building a preset. Needs $root, the repository root; all output goes to stderr.
: "${root:?}"

# with_lock COMMAND...: one at a time, so that two runs in one pipeline do not build over each other.
with_lock() {
  mkdir -p "$root/build"
  (
    flock 9
    "$@" 9>&-
  ) 9>"$root/build/.lock"
}

configure_preset() {
  (cd "$root" && cmake --preset "$1") </dev/null >&2
}

# build_preset PRESET [OPTION...]: prints nothing when everything is up to date.
build_preset() {
  local preset=$1
  shift
  (cd "$root" && cmake --build --preset "$preset" "$@") </dev/null 2>&1 |
    sed -u -e '/^\[[0-9]*\/[0-9]*\] Re-checking globbed directories\.\.\.$/d' \
      -e '/^\(-- \)\?\(GLOB mismatch!\|Configuring done\|Generating done\|Build files have been written to:.*\)$/d' \
      -e '/^\[[0-9]*\/[0-9]*\] Re-running CMake\.\.\.$/d' \
      -e '/^ninja: no work to do\.$/d' >&2
}
