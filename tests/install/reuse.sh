#!/bin/sh
# A compiler launcher: units of Velkor that a build tree has compiled are taken from there. FOLDER is Velkor's place in
# the project that is built, with a slash behind it, or empty.
#
#   reuse.sh BUILD FOLDER COMPILER ARGUMENT…
build=$1
folder=$2
shift 2
for argument; do
  case $previous in -o) object=$argument ;; -MF) dependencies=$argument ;; esac
  previous=$argument
done
case $object in
  "$folder"*)
    : >"$dependencies"
    exec cp "$build/${object#"$folder"}" "$object" ;;
esac
exec "$@"
