"""The same apply as a script would do it: FOLDER of a practice Mac with staged icons, "create" or "update", "whole" or
"own"; prints the ms that passed, or the processor time without that of the children.

Without a wait, and with the same tools as children. What the settings say of an application is written when it
changes, the whole file each time and flushed. The script takes a picture as it is for the wrapper's icon, where ours
decodes it and codes it in every size; and it leaves out the plan, the check of the disk's space and the comparison
afterwards."""
import os, plistlib, shutil, sqlite3, struct, subprocess, sys, time, uuid

root, mode, figure = sys.argv[1:4]
HOME = "/Users/practice"
SUPPORT = root + HOME + "/Library/Application Support/com.tavrik.Tavrik"
LAUNCHPAD = root + "/private/var/folders/tv/practice/0/com.apple.dock.launchpad/db/db"
DOCK = root + HOME + "/Library/Preferences/com.apple.dock.plist"
WRAPPERS = HOME + "/Applications/Tavrik"
SETTINGS = SUPPORT + "/AppSettings"
REGISTER = "/System/Library/Frameworks/CoreServices.framework/Frameworks/LaunchServices.framework/Support/lsregister"
ROWS = """SELECT i.rowid, i.flags, i.parent_id, i.ordering, a.bookmark FROM items i JOIN apps a ON i.rowid = a.item_id
    WHERE a.bundleid = ?"""


def run(tool, *arguments):
    subprocess.run([root + tool, *arguments], check=True, stdout=subprocess.DEVNULL)


def flush(folder):
    descriptor = os.open(folder, os.O_RDONLY)
    os.fsync(descriptor)
    os.close(descriptor)


def write_flushed(path, content):
    with open(path + ".tmp", "wb") as file:
        file.write(content)
        file.flush()
        os.fsync(file.fileno())
    os.rename(path + ".tmp", path)
    flush(os.path.dirname(path))


def load(path):
    with open(path, "rb") as file:
        return plistlib.load(file)


def change_settings(key, identifier, value):
    settings = load(SETTINGS + ".plist")
    if value is None:
        settings.get(key, {}).pop(identifier, None)
    else:
        settings.setdefault(key, {})[identifier] = value
    shutil.copyfile(SETTINGS + ".plist", SETTINGS + ".backup")
    write_flushed(SETTINGS + ".plist", plistlib.dumps(settings))


def bookmark_path(data):
    """The path components of a bookmark: its first table of contents, key 0x1004, an array of texts."""
    header = struct.unpack_from("<I", data, 12)[0]
    def item(offset):
        length = struct.unpack_from("<I", data, header + offset)[0]
        return data[header + offset + 8:header + offset + 8 + length]
    toc = header + struct.unpack_from("<I", data, header)[0]
    for entry in range(struct.unpack_from("<I", data, toc + 16)[0]):
        key, offset, _ = struct.unpack_from("<III", data, toc + 20 + 12 * entry)
        if key == 0x1004:
            return "/" + "/".join(item(part)[:].decode() for (part,) in struct.iter_unpack("<I", item(offset)))
    return None


def launchpad():
    return sqlite3.connect(LAUNCHPAD, isolation_level=None)


def rows_of(identifier):
    database = launchpad()
    rows = [(*row, bookmark_path(row[4])) for row in database.execute(ROWS, (identifier,))]
    database.close()
    return [row for row in rows if row[5] and os.path.exists(root + row[5])]


def applications():
    database = launchpad()
    found = [(identifier, bookmark_path(bookmark)) for identifier, bookmark in database.execute(
        "SELECT bundleid, bookmark FROM apps WHERE bookmark IS NOT NULL ORDER BY title")]
    database.close()
    return {identifier: path for identifier, path in found if path and WRAPPERS not in path and os.path.exists(root + path)}


def back_up():
    folder = os.path.join(SUPPORT, "Backups", str(uuid.uuid4()))
    os.makedirs(folder)
    with sqlite3.connect(LAUNCHPAD) as live, sqlite3.connect(folder + "/launchpad.db") as copy:
        live.backup(copy)
    shutil.copyfile(DOCK, folder + "/dock.plist")
    for name in os.listdir(folder):
        with open(os.path.join(folder, name), "rb") as file:
            os.fsync(file.fileno())


def transfer(identifier):
    """The staged icon becomes the last permanent one."""
    pending, permanent = f"{SUPPORT}/PendingChanges/Icons/{identifier}", f"{SUPPORT}/IconCache/{identifier}"
    os.makedirs(permanent, exist_ok=True)
    number = sum(name.startswith("icon_") for name in os.listdir(permanent))
    icon = f"{permanent}/icon_{number}.png"
    for name in os.listdir(pending):
        os.rename(f"{pending}/{name}", icon)
    os.rmdir(pending)
    flush(permanent)
    change_settings("SelectedIcons", identifier, number)
    return icon


def set_icon(wrapper, picture):
    with open(picture, "rb") as file:
        content = file.read()
    for name in (wrapper + "/Icon\r", wrapper + "/._Icon\r", os.path.dirname(wrapper) + "/._" + os.path.basename(wrapper)):
        if os.path.lexists(name):
            os.remove(name)
        with open(name, "wb") as file:
            file.write(content if name.endswith("._Icon\r") else bytes(32))


def register(wrapper):
    run("/usr/bin/touch", wrapper)
    run(REGISTER, "-f", wrapper)


def build(original, icon):
    wrapper = WRAPPERS + "/" + os.path.basename(original)
    os.makedirs(root + wrapper)
    for name in os.listdir(root + original):
        run("/bin/ln", "-s", f"{original}/{name}", f"{wrapper}/{name}")
    set_icon(root + wrapper, icon)
    register(wrapper)
    return wrapper


def restart_dock():
    run("/usr/bin/touch", DOCK.removeprefix(root))
    run("/usr/bin/defaults", "write", "com.apple.dock", "RecentlyUsedApps", "-bool", "true")


def index(wrappers):
    """What the Dock does when it has started."""
    database = launchpad()
    database.execute("BEGIN IMMEDIATE")
    for identifier, wrapper in wrappers.items():
        bookmark = database.execute("SELECT bookmark FROM apps WHERE bundleid = ?", (identifier,)).fetchone()[0]
        page = database.execute("SELECT max(parent_id) FROM items WHERE type = 4").fetchone()[0]
        row = database.execute("INSERT INTO items (uuid, flags, type, parent_id, ordering) VALUES (?, 0, 4, ?, -1)",
                               (str(uuid.uuid4()), page)).lastrowid
        database.execute("INSERT INTO apps (item_id, title, bundleid, moddate, bookmark) VALUES (?, ?, ?, 0, ?)",
                         (row, os.path.basename(wrapper)[:-4], identifier, bookmark))
    database.execute("COMMIT")
    database.close()


def swap(one, other):
    database = launchpad()
    database.execute("BEGIN EXCLUSIVE")
    switch = "UPDATE dbinfo SET value = ? WHERE key = 'ignore_items_update_triggers'"
    database.execute(switch, ("1",))
    update = "UPDATE items SET flags = ?, parent_id = ?, ordering = ? WHERE rowid = ?"
    database.execute(update, (*other[1:4], one[0]))
    database.execute(update, (*one[1:4], other[0]))
    database.execute(switch, ("0",))
    database.execute("COMMIT")
    database.close()


def repoint(identifier, wrapper):
    preferences = load(DOCK)
    tiles = [tile["tile-data"] for tile in preferences["persistent-apps"]
             if tile["tile-data"].get("bundle-identifier") == identifier]
    if not tiles:
        return
    register(wrapper)
    write_flushed(DOCK.replace(".plist", ".backup.plist"), plistlib.dumps(preferences, fmt=plistlib.FMT_BINARY))
    change_settings("DockBookmarks", identifier, {"bookmark": tiles[0]["book"], "isOriginal": True})
    tiles[0]["file-data"]["_CFURLString"] = "file://" + wrapper + "/"
    with open(DOCK, "wb") as file:
        plistlib.dump(preferences, file, fmt=plistlib.FMT_BINARY)
        file.flush()
        os.fsync(file.fileno())


def complete(identifier, wrapper):
    rows_of(identifier)
    original, indexed = rows_of(identifier)[:2]
    record = {name: list(row[:4]) for name, row in (("original", original), ("wrapper", indexed))}
    change_settings("SwapRecords", identifier, record)
    swap(original, indexed)
    change_settings("TavrikMappings", identifier, {"originalRowID": original[0], "tavrikRowID": indexed[0]})
    repoint(identifier, wrapper)
    change_settings("SwapRecords", identifier, None)


def apply():
    staged = sorted(os.listdir(SUPPORT + "/PendingChanges/Icons"))
    paths = applications()
    back_up()
    icons = {identifier: transfer(identifier) for identifier in staged}
    if mode == "create":
        wrappers = {identifier: build(paths[identifier], icons[identifier]) for identifier in staged}
        restart_dock()
        index(wrappers)
        for identifier, wrapper in wrappers.items():
            complete(identifier, wrapper)
    else:
        for identifier in staged:
            set_icon(root + WRAPPERS + "/" + os.path.basename(paths[identifier]), icons[identifier])
    restart_dock()


dock = launchpad()  # holds the file open, as the Dock does
dock.execute("SELECT count(*) FROM dbinfo").fetchall()
if not os.path.exists(SETTINGS + ".plist"):
    write_flushed(SETTINGS + ".plist", plistlib.dumps({"version": 1}))
clock = time.perf_counter if figure == "whole" else time.process_time
start = clock()
apply()
print((clock() - start) * 1000)
