# shellcheck shell=bash
# The C++ files of the work tree, one a line. The current folder is the repository root.

# existing_cpp: of the paths on standard input, the C++ files that exist, each once.
existing_cpp() {
  local path
  sort -u | while IFS= read -r path; do
    if [[ $path == *.@(h|cc) && -f $path ]]; then printf '%s\n' "$path"; fi
  done
}

cpp_files() {
  git ls-files -co --exclude-standard | existing_cpp
}

# changed_files: everything that differs from where this branch left origin/main, or on main itself
# from the commit before; fails when there is no such commit.
changed_files() {
  local base
  base=$(git merge-base HEAD origin/main 2>/dev/null) || base=
  if [[ -z $base || $base == "$(git rev-parse HEAD)" ]]; then
    base=$(git rev-parse --verify --quiet HEAD~1) || return
  fi
  git diff --name-only "$base"
  git ls-files -o --exclude-standard
}
