"""The same snapshot with sqlite3, plistlib and AES-GCM of the cryptography package, or `age` where that is missing:
FOLDER of a practice Mac, ROUNDS, "plain" or "checked" (the database checked before and after, and what was written
read again and compared); prints the median in ms."""
import os, plistlib, sqlite3, statistics, subprocess, sys, tempfile, time

try:
    from cryptography.hazmat.primitives.ciphers.aead import AESGCM
except ImportError:
    AESGCM = None

root, rounds, checked = sys.argv[1], int(sys.argv[2]), sys.argv[3] == "checked"
LAUNCHPAD = os.path.join(root, "private/var/folders/tv/practice/0/com.apple.dock.launchpad/db/db")
DOCK = os.path.join(root, "Users/practice/Library/Preferences/com.apple.dock.plist")
LETTERS = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz"
PLAIN = {start + place: letter for start in range(0x1D400, 0x1D6A4, 52) for place, letter in enumerate(LETTERS)}
KEY = os.urandom(32)


def cleaned_launchpad(folder):
    copy = os.path.join(folder, "copy.db")
    with sqlite3.connect(LAUNCHPAD) as live, sqlite3.connect(copy, isolation_level=None) as database:
        live.backup(database)
        if checked and database.execute("PRAGMA integrity_check").fetchone()[0] != "ok":
            sys.exit("damaged")
        database.execute("BEGIN")
        for table, row in (("apps", "ROWID"), ("groups", "item_id")):
            titles = database.execute(f"SELECT {row}, title FROM {table} WHERE title IS NOT NULL").fetchall()
            database.executemany(f"UPDATE {table} SET title = ? WHERE {row} = ?", [
                (plain, number) for number, title in titles if (plain := title.translate(PLAIN)) != title])
        database.execute("COMMIT")
        database.execute("PRAGMA journal_mode = DELETE")
    with open(copy, "rb") as file:
        content = file.read()
    os.remove(copy)
    return content


def cleaned_dock():
    with open(DOCK, "rb") as file:
        dock = plistlib.load(file)
    for tile in dock["persistent-apps"]:
        if label := tile["tile-data"].get("file-label"):
            tile["tile-data"]["file-label"] = label.translate(PLAIN)
    return plistlib.dumps(dock, fmt=plistlib.FMT_BINARY)


def age(content, *options):
    return subprocess.run(["age", *options], input=content, check=True, capture_output=True).stdout


def snapshot(folder, identity):
    members = {"com.apple.dock.plist": cleaned_dock(), "launchpad.db": cleaned_launchpad(folder)}
    archive = plistlib.dumps(members, fmt=plistlib.FMT_BINARY)
    nonce = os.urandom(12)
    sealed = nonce + AESGCM(KEY).encrypt(nonce, archive, None) if AESGCM else age(archive, "-e", "-i", identity)
    name = os.path.join(folder, "backup")
    with open(name + ".new", "wb") as file:
        file.write(sealed)
        file.flush()
        os.fsync(file.fileno())
    os.rename(name + ".new", name)
    above = os.open(folder, os.O_RDONLY)
    os.fsync(above)
    os.close(above)
    if checked:
        with open(name, "rb") as file:
            found = file.read()
        opened = AESGCM(KEY).decrypt(found[:12], found[12:], None) if AESGCM else age(found, "-d", "-i", identity)
        database = sqlite3.connect(":memory:")
        database.deserialize((content := plistlib.loads(opened))["launchpad.db"])
        if content != members or database.execute("PRAGMA integrity_check").fetchone()[0] != "ok":
            sys.exit("the backup differs")


with tempfile.TemporaryDirectory(dir=os.path.dirname(root)) as folder:
    identity = os.path.join(folder, "key")
    if not AESGCM:
        subprocess.run(["age-keygen", "-o", identity], check=True, capture_output=True)
    times = []
    for _ in range(rounds):
        start = time.perf_counter()
        snapshot(folder, identity)
        times.append((time.perf_counter() - start) * 1000)
print(statistics.median(times))
