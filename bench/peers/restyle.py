"""The same change of style with sqlite3 and plistlib, each pass in one transaction: FOLDER of a practice Mac, ROUNDS;
prints the median in ms. Names are translated letter by letter through a table."""
import os, plistlib, sqlite3, statistics, struct, sys, tempfile, time

root, rounds = sys.argv[1], int(sys.argv[2])
APPS = "SELECT a.ROWID, a.title, a.bundleid, a.bookmark FROM apps a WHERE a.title IS NOT NULL AND a.bookmark IS NOT NULL"
FOLDERS = "SELECT item_id, title FROM groups WHERE title IS NOT NULL"
LETTERS = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz"
STYLES = [{ord(letter): start + place for place, letter in enumerate(LETTERS)} for start in (0x1D400, 0x1D49C)]
PLAIN = {styled: letter for style in STYLES for letter, styled in style.items()}


def bookmark_path(data):
    """The path components of a bookmark: its first table of contents, key 0x1004, an array of texts."""
    header = struct.unpack_from("<I", data, 12)[0]
    def item(offset):
        length, kind = struct.unpack_from("<II", data, header + offset)
        return kind, data[header + offset + 8:header + offset + 8 + length]
    toc = header + struct.unpack_from("<I", data, header)[0]
    for entry in range(struct.unpack_from("<I", data, toc + 16)[0]):
        key, offset, _ = struct.unpack_from("<III", data, toc + 20 + 12 * entry)
        if key == 0x1004:
            return "/" + "/".join(item(part)[1].decode() for (part,) in struct.iter_unpack("<I", item(offset)[1]))
    return None


def style(database, settings, table):
    changes = []
    database.execute("BEGIN IMMEDIATE")
    for row, title, _, bookmark in database.execute(APPS):
        path = bookmark_path(bookmark)
        there = path is not None and os.path.exists(root + path)
        plain = os.path.basename(path).removesuffix(".app") if there else title.translate(PLAIN)
        if (styled := plain.translate(table)) != title:
            changes.append((styled, row))
    database.executemany("UPDATE apps SET title = ? WHERE ROWID = ?", changes)
    database.execute("COMMIT")

    with open(settings, "rb") as file:
        backups = plistlib.load(file)["FolderBackups"]
    changes = []
    database.execute("BEGIN IMMEDIATE")
    for row, title in database.execute(FOLDERS):
        plain = title.translate(PLAIN)
        backup = backups.get(str(row), plain)
        base = backup if backup.lower() == plain.lower() else plain
        if (styled := base.translate(table)) != title:
            changes.append((styled, row))
    database.executemany("UPDATE groups SET title = ? WHERE item_id = ?", changes)
    database.execute("COMMIT")
    folders = {str(row) for (row,) in database.execute("SELECT item_id FROM groups")}
    return [row for row in backups if row not in folders]


database = sqlite3.connect(os.path.join(root, "private/var/folders/tv/practice/0/com.apple.dock.launchpad/db/db"),
                           isolation_level=None)
database.execute("UPDATE groups SET title = 'Folder ' || item_id WHERE item_id IN (SELECT parent_id FROM items WHERE type = 4)")
with tempfile.NamedTemporaryFile(suffix=".plist") as settings:
    plistlib.dump({"FolderBackups": {str(row): title for row, title in database.execute(FOLDERS)}}, settings)
    settings.flush()
    times = []
    for number in range(rounds):
        start = time.perf_counter()
        style(database, settings.name, STYLES[number % 2])
        times.append((time.perf_counter() - start) * 1000)
print(statistics.median(times))
