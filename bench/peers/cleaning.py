"""The same cleaning of a Launchpad database with sqlite3: FOLDER of a practice Mac, ROUNDS and, for one that also does
without a journal and flushes, "unsafe"; prints the median in ms. Bytes go into a temporary file and come out of it, the titles
change in one transaction, and names are translated letter by letter through a table."""
import os, sqlite3, statistics, sys, tempfile, time

root, rounds, unsafe = sys.argv[1], int(sys.argv[2]), sys.argv[3:] == ["unsafe"]
PLAIN = {0x1D400 + place: letter for place, letter in enumerate("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz")}
TABLES = (("SELECT ROWID, title FROM apps WHERE title IS NOT NULL ORDER BY ROWID", "UPDATE apps SET title = ? WHERE ROWID = ?"),
          ("SELECT item_id, title FROM groups WHERE title IS NOT NULL ORDER BY item_id", "UPDATE groups SET title = ? WHERE item_id = ?"))


def clean(content):
    content = bytearray(content)
    content[18:20] = b"\1\1"  # no write-ahead log for a file that goes at once
    with tempfile.TemporaryDirectory() as folder:
        path = os.path.join(folder, "launchpad_temp.db")
        with open(path, "wb") as file:
            file.write(content)
        database = sqlite3.connect(path, isolation_level=None)
        if unsafe:
            database.execute("PRAGMA journal_mode = OFF")
            database.execute("PRAGMA synchronous = OFF")
        database.execute("BEGIN EXCLUSIVE")
        for select, update in TABLES:
            rows = ((title.translate(PLAIN), title, row) for row, title in database.execute(select))
            database.executemany(update, [(plain, row) for plain, title, row in rows if plain != title])
        database.execute("COMMIT")
        database.close()
        with open(path, "rb") as file:
            return file.read()


with open(os.path.join(root, "private/var/folders/tv/practice/0/com.apple.dock.launchpad/db/db"), "rb") as file:
    styled = file.read()
times = []
for number in range(rounds):
    start = time.perf_counter()
    cleaned = clean(styled)
    times.append((time.perf_counter() - start) * 1000)
assert cleaned != styled
print(statistics.median(times))
