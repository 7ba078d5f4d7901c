#!/bin/sh
# A compiler launcher: units of Velkor that a build tree has compiled are taken from there.
#
#   reuse.sh BUILD COMPILER ARGUMENT…
build=$1
shift
for argument; do
  case $previous in -o) object=$argument ;; -MF) dependencies=$argument ;; esac
  previous=$argument
done
case $object in
  velkor/*)
    : >"$dependencies"
    exec cp "$build/${object#velkor/}" "$object" ;;
esac
exec "$@"
