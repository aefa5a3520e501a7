#!/usr/bin/env bash
# scripts/release on a temporary repository holding what it reads (the project's version, the
# program's version line and the package test, here a stand-in): it tags the release branch's
# commit with the annotated tag that pre-commit configurations pin, and makes no tag when the
# work tree has changes, the branch is another, the tag exists or the package test fails.
set -euo pipefail
source_dir=$1
root=$(mktemp -d)
trap 'rm -rf "$root"' EXIT
export GIT_AUTHOR_NAME=test GIT_AUTHOR_EMAIL=test@example.org GIT_COMMITTER_NAME=test GIT_COMMITTER_EMAIL=test@example.org
failures=0
fail() { echo "FAIL: $*"; failures=$((failures + 1)); }
pass() { echo "PASS: $*"; }

cd "$root"
git init -q -b main .
mkdir -p scripts core packaging
cp "$source_dir/scripts/release" scripts/
cp "$source_dir/CMakeLists.txt" .
cp "$source_dir/core/product.h" core/
version=$(sed -n 's/^project([A-Za-z]* VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
tag=v$version
printf '#!/bin/sh\nexit "${PACKAGE_TEST_STATUS:-0}"\n' > packaging/test-package
chmod +x packaging/test-package
git add -A && git commit -qm "the release"

# Each refusal: how the repository is set up, then the words, then what standard error says.
expect_refusal() {
  local name=$1 reason=$2
  shift 2
  local err
  if err=$("$@" 2>&1); then
    fail "$name: tagged"
  elif [ "$err" != "release: $reason; no tag was made." ]; then
    fail "$name: said '$err'"
  elif git rev-parse --quiet --verify "refs/tags/$tag" >/dev/null; then
    fail "$name: a tag was made"
  else
    pass "$name"
  fi
}

echo change >> CMakeLists.txt
expect_refusal "changes not committed" "the work tree has changes that are not committed" scripts/release --tag-only
git checkout -q CMakeLists.txt
git checkout -q -b topic
expect_refusal "another branch" "not on branch main" scripts/release --tag-only
git checkout -q main
expect_refusal "package test failed" "the package test failed" env PACKAGE_TEST_STATUS=1 scripts/release

if out=$(scripts/release 2>&1); then
  if [ "$(git cat-file -t "$tag")" != tag ]; then
    fail "the tag $tag is no annotated tag"
  elif [ "$(git rev-parse "$tag^{commit}")" != "$(git rev-parse HEAD)" ]; then
    fail "the tag $tag is not on the release's commit"
  elif [ "$(git tag -l --format='%(contents:subject)' "$tag")" != "Style Tarnel $version" ]; then
    fail "the tag $tag says '$(git tag -l --format='%(contents:subject)' "$tag")'"
  else
    pass "tagged as $tag"
  fi
else
  fail "the release was refused: $out"
fi
err=$(scripts/release --tag-only 2>&1) && fail "tagged twice" ||
  { [ "$err" = "release: tag $tag exists already; no tag was made." ] && pass "tag exists" || fail "tag exists: said '$err'"; }

[ "$failures" -eq 0 ] || { echo "$failures failed"; exit 1; }
