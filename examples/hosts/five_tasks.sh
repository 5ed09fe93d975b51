#!/usr/bin/env bash
# The five tasks of docs/hosts.md from a shell.
set -uo pipefail

zq7 call BahtStringObject.BahtString 121.50

# A date is typed wherever an operation takes one.
zq7 call StandardObject.AddMonth 31/1/2567 1 --convention dmy-buddhist

file="C:${PWD//\//\\}\\settings.ini"
zq7 call ASCIIObject.Setvalue "$file" Port 9600
zq7 call ASCIIObject.GetValue "$file" Port

# A grid lives as long as its batch; events come with the answers.
zq7 batch << 'END' | sed -n 's/.*"args":\[\([0-9]*\),\([0-9]*\)\].*/row \1, column \2/p'
{"class":"GridValueObject","object":"grid","call":"SetCols","args":[3]}
{"object":"grid","call":"Setvalue","args":[7,2,12.5]}
END

if ! message=$(zq7 call StandardObject.CTDATE 31/2/2567 --convention dmy-buddhist 2>&1); then
  number=${message#*run-time error }
  echo "error ${number%%:*}"
fi
