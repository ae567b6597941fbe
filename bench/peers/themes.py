"""A theme file with zipfile and hashlib: export|import PICTURE ICONS ROUNDS; prints the median in ms.

The picture is every icon. Export reads the icons from a folder, import writes and flushes them into a new one and gives that its name.
No picture is decoded.
"""
import hashlib, io, os, plistlib, shutil, statistics, sys, tempfile, time, zipfile

way, picture, icons, rounds = sys.argv[1], sys.argv[2], int(sys.argv[3]), int(sys.argv[4])


def exported(folder):
    paths = ["Info.plist", *("Icons/" + name for name in sorted(os.listdir(os.path.join(folder, "Icons"))))]
    content, entries = {}, {}
    for path in paths:
        with open(os.path.join(folder, path), "rb") as file:
            content[path] = file.read()
        entries[path] = {"size": len(content[path]), "sha256": hashlib.sha256(content[path]).digest()}
    out = io.BytesIO()
    with zipfile.ZipFile(out, "w") as archive:
        archive.writestr("Manifest.plist", plistlib.dumps({"formatVersion": 1, "entries": entries}))
        for path in paths:
            archive.writestr(path, content[path])
    return out.getvalue()


def flush(path):
    handle = os.open(path, os.O_RDONLY)
    os.fsync(handle)
    os.close(handle)


def imported(data, library):
    fresh = os.path.join(library, ".new")
    os.makedirs(os.path.join(fresh, "Icons"))
    with zipfile.ZipFile(io.BytesIO(data)) as archive:
        entries = plistlib.loads(archive.read("Manifest.plist"))["entries"]
        for path, entry in entries.items():
            content = archive.read(path)
            if len(content) != entry["size"] or hashlib.sha256(content).digest() != entry["sha256"]:
                sys.exit("damaged")
            with open(os.path.join(fresh, path), "xb") as file:
                file.write(content)
                file.flush()
                os.fsync(file.fileno())
    flush(os.path.join(fresh, "Icons"))
    flush(fresh)
    os.rename(fresh, os.path.join(library, "imported"))
    flush(library)


with tempfile.TemporaryDirectory() as folder:
    os.mkdir(os.path.join(folder, "Icons"))
    with open(os.path.join(folder, "Info.plist"), "wb") as file:
        plistlib.dump({"themeID": "abcdefgh01234567", "name": "Ocean"}, file, fmt=plistlib.FMT_BINARY)
    for number in range(icons):
        shutil.copyfile(picture, os.path.join(folder, f"Icons/com.example.app{number}.png"))
    data = exported(folder)
    times = []
    for _ in range(rounds):
        start = time.perf_counter()
        exported(folder) if way == "export" else imported(data, folder)
        times.append((time.perf_counter() - start) * 1000)
        shutil.rmtree(os.path.join(folder, "imported"), ignore_errors=True)
print(statistics.median(times))
