#!/usr/bin/env python3
"""Opens a backup without the program, by what its file format says, and prints what is in it.

open_backup.py FILE SERIAL_NUMBER

A backup is a nonce of 12 bytes, the ciphertext, and a tag of 16: AES-256-GCM under the SHA-256 digest of the serial
number of the Mac that made it. In it is a binary property list from file name to content. Needs the package
"cryptography".
"""
import hashlib, json, plistlib, sqlite3, sys, tempfile
from cryptography.hazmat.primitives.ciphers.aead import AESGCM

with open(sys.argv[1], "rb") as file:
    sealed = file.read()
key = hashlib.sha256(sys.argv[2].encode()).digest()
members = plistlib.loads(AESGCM(key).decrypt(sealed[:12], sealed[12:], None), fmt=plistlib.FMT_BINARY)

dock = plistlib.loads(members["com.apple.dock.plist"])
with tempfile.NamedTemporaryFile(suffix=".db") as copy:
    copy.write(members["launchpad.db"])
    copy.flush()
    database = sqlite3.connect(copy.name)
    intact = database.execute("PRAGMA integrity_check").fetchone()[0]
    titles = [row[0] for row in database.execute("SELECT title FROM apps ORDER BY item_id")]
    database.close()

json.dump({"members": {name: hashlib.sha256(content).hexdigest() for name, content in members.items()},
           "dock": [tile["tile-data"]["file-label"] for tile in dock["persistent-apps"]],
           "launchpad": titles, "integrity": intact}, sys.stdout, sort_keys=True)
