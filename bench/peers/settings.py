"""One round of the settings' read-modify-write with plistlib: ENTRIES ROUNDS; prints the median in ms."""
import datetime, os, plistlib, shutil, statistics, sys, tempfile, time

entries, rounds = int(sys.argv[1]), int(sys.argv[2])
with tempfile.TemporaryDirectory() as folder:
    main, backup, fresh = (os.path.join(folder, "AppSettings." + end) for end in ("plist", "backup", "tmp"))
    mapping = {"originalRowID": 1, "tavrikRowID": 1001, "createdDate": datetime.datetime(2026, 5, 9)}
    with open(main, "wb") as file:
        plistlib.dump({"TavrikMappings": {f"com.example.application{n}": dict(mapping) for n in range(entries)}}, file)
    times = []
    for row in range(rounds):
        start = time.perf_counter()
        with open(main, "rb") as file:
            settings = plistlib.load(file)
        settings["TavrikMappings"]["com.example.application0"]["originalRowID"] = row
        shutil.copyfile(main, backup)
        with open(fresh, "wb") as file:
            plistlib.dump(settings, file)
            file.flush()
            os.fsync(file.fileno())
        os.replace(fresh, main)
        handle = os.open(folder, os.O_RDONLY)
        os.fsync(handle)
        os.close(handle)
        times.append((time.perf_counter() - start) * 1000)
print(statistics.median(times))
