#!/bin/sh
# schema_test.sh MAKE_SCHEMA L2FIB_SHOW SOURCES: the published schema is what make-schema writes; the samples' lines, of
# every kind, are valid by it, to a program that knows JSON Schema.
set -eu
make_schema=$1
l2fib_show=$2
sources=$3
made=$(mktemp -d)
trap 'rm -rf "$made"' EXIT

"$make_schema" "$sources" "$made/schema.json" "$made/json-format.md"
if ! diff -u "$sources/recording/schema/schema.json" "$made/schema.json" ||
    ! diff -u "$sources/docs/json-format.md" "$made/json-format.md"; then
    echo "If that is intended: tools/accept-schema"
    exit 1
fi

"$l2fib_show" schema >"$made/schema.json"
for options in "" --heading --bytes --count; do
    # shellcheck disable=SC2086
    "$l2fib_show" replay --json $options "$sources"/examples/*.jsonl
done >"$made/lines.jsonl"
python3 - "$made/schema.json" "$made/lines.jsonl" <<'PROGRAM'
import json
import sys
from jsonschema import Draft202012Validator

schema = json.load(open(sys.argv[1]))
Draft202012Validator.check_schema(schema)
validator = Draft202012Validator(schema)
errors = [error for line in open(sys.argv[2]) for error in validator.iter_errors(json.loads(line))]
for error in errors:
    print(error.json_path, error.message)
sys.exit(1 if errors else 0)
PROGRAM
