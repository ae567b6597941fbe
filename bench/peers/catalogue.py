"""The same listing in Python, as a whole process: FOLDER of a practice Mac; prints the number of applications.

With "--icons" each application's icon file is looked up at once by its Info.plist, as a listing does that has no
handle to leave it for later."""
import locale, os, plistlib, sqlite3, struct, sys, uuid

root = sys.argv[1]
with_icons = "--icons" in sys.argv
QUERY = """SELECT a.title, a.bundleid, a.bookmark, i.flags, i.rowid, i.parent_id, i.ordering
    FROM apps a JOIN items i ON a.item_id = i.rowid
    WHERE a.bookmark IS NOT NULL AND ((i.flags & 128) = 0 OR a.bundleid LIKE 'com.apple.%') ORDER BY a.title"""


def bookmark_path(data):
    """The path components of a bookmark: its first table of contents, key 0x1004, an array of texts."""
    header = struct.unpack_from("<I", data, 12)[0]
    def item(offset):
        length, kind = struct.unpack_from("<II", data, header + offset)
        return kind, data[header + offset + 8:header + offset + 8 + length]
    toc = header + struct.unpack_from("<I", data, header)[0]
    count = struct.unpack_from("<I", data, toc + 16)[0]
    for entry in range(count):
        key, offset, _ = struct.unpack_from("<III", data, toc + 20 + 12 * entry)
        if key == 0x1004:
            kind, content = item(offset)
            parts = [item(part)[1].decode() for (part,) in struct.iter_unpack("<I", content)]
            return "/" + "/".join(parts)
    return None


def icon_file(path):
    try:
        with open(root + path + "/Contents/Info.plist", "rb") as file:
            name = plistlib.load(file).get("CFBundleIconFile", "")
    except (OSError, plistlib.InvalidFileException):
        name = ""
    for candidate in (name.removesuffix(".icns"), "icon", "Icon", "app"):
        file = f"{root}{path}/Contents/Resources/{candidate}.icns"
        if candidate and os.path.exists(file):
            return file
    return None


def applications():
    database = sqlite3.connect(os.path.join(root, "private/var/folders/tv/practice/0/com.apple.dock.launchpad/db/db"))
    seen, found = set(), []
    for title, identifier, bookmark, flags, row, parent, ordering in database.execute(QUERY):
        identifier = identifier.strip()
        if identifier in seen:
            continue
        seen.add(identifier)
        path = bookmark_path(bookmark)
        if path is None or not os.path.exists(root + path):
            continue
        is_ios = os.path.exists(root + path + "/Wrapper") or "/System/iOSSupport/" in path
        standard = path.startswith(("/Applications/", "/System/", "/Users/practice/Applications/"))
        if not standard:
            standard = os.path.realpath(root + path).startswith(root + "/Applications/")
        found.append({"id": str(uuid.uuid4()), "name": title, "bundleID": identifier, "path": path, "isIOSApp": is_ios,
                      "icon": icon_file(path) if with_icons else None, "isUnsupportedApp": not standard, "row": (row, flags, parent, ordering, bookmark)})
    found.sort(key=lambda app: locale.strxfrm(app["name"].casefold()))
    return found


locale.setlocale(locale.LC_ALL, "")
print(len(applications()))
