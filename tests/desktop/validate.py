"""validate.py SCHEMA: of each line of standard input, a JSON value, says in a line what is wrong with it by the schema;
an empty line where nothing is."""

import json
import sys

from jsonschema import Draft202012Validator

with open(sys.argv[1], encoding="utf-8") as file:
    schema = json.load(file)
Draft202012Validator.check_schema(schema)
validator = Draft202012Validator(schema)
for line in sys.stdin.buffer:
    error = next(validator.iter_errors(json.loads(line)), None)
    print("" if error is None else (error.json_path + ": " + error.message)[:200].replace("\n", " "))
