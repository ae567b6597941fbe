cask "tavrik" do
  version "0.1.0"
  # packaging/dmg makes the image; its checksum is written here for each release.
  sha256 :no_check

  url "https://tavrik.example/download/Tavrik-#{version}.dmg"
  name "Tavrik"
  desc "Gives applications another look in Launchpad and the Dock"
  homepage "https://tavrik.example/"

  depends_on macos: ">= :big_sur"

  app "Tavrik.app"
  binary "#{appdir}/Tavrik.app/Contents/MacOS/tavrikctl"

  uninstall quit: "com.tavrik.Tavrik"

  zap trash: [
    "/private/var/folders/*/*/0/com.apple.dock.launchpad/db/db.new",
    "/private/var/folders/*/*/0/com.apple.dock.launchpad/db/db.pre-restore-backup*",
    "/private/var/folders/*/*/C/com.tavrik.Tavrik",
    "/private/var/folders/*/*/T/backup_check.db*",
    "/private/var/folders/*/*/T/launchpad_temp.db*",
    "~/.tavrik-access",
    "~/Applications/.tavrik-access",
    "~/Applications/Tavrik",
    "~/Library/Application Support/.tavrik-access",
    "~/Library/Application Support/com.tavrik.Tavrik",
    "~/Library/Caches/com.tavrik.Tavrik",
    "~/Library/Caches/Tavrik",
    "~/Library/HTTPStorages/com.tavrik.Tavrik",
    "~/Library/HTTPStorages/com.tavrik.Tavrik.binarycookies",
    "~/Library/Preferences/.tavrik-access",
    "~/Library/Preferences/com.apple.dock.backup.plist*",
    "~/Library/Preferences/com.apple.dock.plist.new",
    "~/Library/Preferences/com.apple.dock.plist.pre-restore-backup*",
    "~/Library/Preferences/com.tavrik.Tavrik.plist*",
    "~/Library/Saved Application State/com.tavrik.Tavrik.savedState",
  ]

  caveats <<~EOS
    Before you uninstall Tavrik, have it take everything back, so that Launchpad and the
    Dock show the applications themselves again:
      tavrikctl remove-everything
    After an uninstall without it, deleted stand-ins leave gaps there.
  EOS
end
