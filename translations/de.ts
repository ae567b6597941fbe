<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AboutSheet</name>
    <message>
        <source>About Tavrik</source>
        <translation>Über Tavrik</translation>
    </message>
    <message>
        <source>Tavrik</source>
        <translation>Tavrik</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Website</translation>
    </message>
    <message>
        <source>Opens in your browser</source>
        <translation>Öffnet sich in deinem Browser</translation>
    </message>
</context>
<context>
    <name>AlertOnly</name>
    <message>
        <source>Tavrik</source>
        <translation>Tavrik</translation>
    </message>
</context>
<context>
    <name>Amounts</name>
    <message>
        <source>%1 KB</source>
        <translation>%1 KB</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 GB</translation>
    </message>
    <message>
        <source>Today at %1</source>
        <translation>Heute um %1</translation>
    </message>
    <message>
        <source>Yesterday at %1</source>
        <translation>Gestern um %1</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1 um %2</translation>
    </message>
    <message>
        <source>d MMM yyyy</source>
        <translation>d. MMM yyyy</translation>
    </message>
</context>
<context>
    <name>AnalysisProgress</name>
    <message>
        <source>Looking at the shapes of icons: %1 %</source>
        <translation>Die Formen der Symbole werden angesehen: %1 %</translation>
    </message>
</context>
<context>
    <name>AppList</name>
    <message>
        <source>Applications</source>
        <translation>Programme</translation>
    </message>
</context>
<context>
    <name>AppMenuBar</name>
    <message>
        <source>Menu bar</source>
        <translation>Menüleiste</translation>
    </message>
</context>
<context>
    <name>AppRow</name>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Why Not?</source>
        <translation>Warum nicht?</translation>
    </message>
</context>
<context>
    <name>ApplicationsBar</name>
    <message numerus="yes">
        <source>%n app(s)</source>
        <translation>
            <numerusform>%n App</numerusform>
            <numerusform>%n Apps</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n app(s)</source>
        <translation>
            <numerusform>%1 von %n App</numerusform>
            <numerusform>%1 von %n Apps</numerusform>
        </translation>
    </message>
    <message>
        <source>Search applications</source>
        <translation>Programme suchen</translation>
    </message>
    <message>
        <source>Sorted from Z to A. Sort from A to Z</source>
        <translation>Von Z bis A sortiert. Von A bis Z sortieren</translation>
    </message>
    <message>
        <source>Sorted from A to Z. Sort from Z to A</source>
        <translation>Von A bis Z sortiert. Von Z bis A sortieren</translation>
    </message>
    <message>
        <source>Filter, in use</source>
        <translation>Filter, in Gebrauch</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
</context>
<context>
    <name>ApplicationsState</name>
    <message>
        <source>Reading your applications…</source>
        <translation>Deine Programme werden gelesen …</translation>
    </message>
    <message>
        <source>Your applications cannot be listed</source>
        <translation>Deine Programme können nicht aufgelistet werden</translation>
    </message>
    <message>
        <source>The Launchpad database cannot be read. The Dock makes it when it starts; wait a moment, then try again.</source>
        <translation>Die Launchpad-Datenbank ist nicht lesbar. Das Dock legt sie beim Start an; warte einen Moment und versuche es dann noch einmal.</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Noch einmal versuchen</translation>
    </message>
    <message>
        <source>No applications here</source>
        <translation>Keine Programme</translation>
    </message>
    <message>
        <source>Launchpad shows none of this kind.</source>
        <translation>Launchpad zeigt keine dieser Art.</translation>
    </message>
    <message>
        <source>No app matches “%1”</source>
        <translation>Keine App passt zu „%1“</translation>
    </message>
    <message>
        <source>No app passes the filters</source>
        <translation>Keine App kommt durch die Filter</translation>
    </message>
    <message>
        <source>Filters hide further apps. Without them there may be one.</source>
        <translation>Filter blenden weitere Apps aus. Ohne sie ist vielleicht eine dabei.</translation>
    </message>
    <message>
        <source>Search looks at names and at identifiers.</source>
        <translation>Gesucht wird in Namen und Kennungen.</translation>
    </message>
    <message>
        <source>Clear Filters</source>
        <translation>Filter zurücksetzen</translation>
    </message>
    <message>
        <source>Clear Search</source>
        <translation>Suche löschen</translation>
    </message>
</context>
<context>
    <name>ApplySheet</name>
    <message>
        <source>Apply Changes</source>
        <translation>Änderungen anwenden</translation>
    </message>
</context>
<context>
    <name>BackupDetailView</name>
    <message>
        <source>Reading the backup…</source>
        <translation>Das Backup wird gelesen …</translation>
    </message>
    <message>
        <source>This backup cannot be shown.</source>
        <translation>Dieses Backup kann nicht gezeigt werden.</translation>
    </message>
    <message>
        <source>What is otherwise now</source>
        <translation>Was jetzt anders ist</translation>
    </message>
    <message>
        <source>This backup cannot be opened</source>
        <translation>Dieses Backup lässt sich nicht öffnen</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Prüfen</translation>
    </message>
    <message>
        <source>Reads the backup and checks that it could be restored.</source>
        <translation>Liest das Backup und prüft, ob es wiederhergestellt werden könnte.</translation>
    </message>
    <message>
        <source>Restore…</source>
        <translation>Wiederherstellen …</translation>
    </message>
</context>
<context>
    <name>BackupDrawing</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Dock: %1</source>
        <translation>Dock: %1</translation>
    </message>
</context>
<context>
    <name>BackupList</name>
    <message>
        <source>Backups</source>
        <translation>Backups</translation>
    </message>
    <message>
        <source>Back Up Now</source>
        <translation>Jetzt sichern</translation>
    </message>
</context>
<context>
    <name>BackupRow</name>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>BackupsTab</name>
    <message>
        <source>The backups cannot be shown</source>
        <translation>Die Backups können nicht gezeigt werden</translation>
    </message>
    <message>
        <source>No backup yet</source>
        <translation>Noch kein Backup</translation>
    </message>
    <message>
        <source>The first one keeps Launchpad and the Dock as they are today, for good. Applying changes takes one too.</source>
        <translation>Das erste bewahrt Launchpad und Dock für immer so, wie sie heute sind. Auch beim Anwenden wird eines angelegt.</translation>
    </message>
    <message>
        <source>Put Launchpad and the Dock back to “%1”?</source>
        <translation>Launchpad und Dock auf „%1“ zurücksetzen?</translation>
    </message>
    <message>
        <source>This is what happens:</source>
        <translation>Das geschieht:</translation>
    </message>
    <message>
        <source>A backup of now is taken first, so that you can come back.</source>
        <translation>Zuerst wird der jetzige Stand gesichert, damit du zurückkannst.</translation>
    </message>
    <message>
        <source>Apps and folders of Launchpad and the tiles of the Dock return to their places of then, with plain names.</source>
        <translation>Apps und Ordner in Launchpad und die Kacheln im Dock kehren an ihre damaligen Plätze zurück, mit schlichten Namen.</translation>
    </message>
    <message>
        <source>Restyled apps get their own look back. Your icons and themes stay.</source>
        <translation>Umgestaltete Apps bekommen ihr eigenes Aussehen zurück. Deine Symbole und Themen bleiben.</translation>
    </message>
    <message>
        <source>What is staged and not applied is dropped.</source>
        <translation>Was vorgemerkt und nicht angewendet ist, entfällt.</translation>
    </message>
    <message>
        <source>The Dock restarts; it vanishes for a moment.</source>
        <translation>Das Dock startet neu; es verschwindet für einen Moment.</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Wiederherstellen</translation>
    </message>
</context>
<context>
    <name>ChangeList</name>
    <message>
        <source>Every change</source>
        <translation>Jede Änderung</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>ConfirmSheet</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>ConsentSheet</name>
    <message>
        <source>May Tavrik look for updates by itself?</source>
        <translation>Darf Tavrik von selbst nach Updates suchen?</translation>
    </message>
    <message>
        <source>Two small files, at most once a day</source>
        <translation>Zwei kleine Dateien, höchstens einmal am Tag</translation>
    </message>
    <message>
        <source>One says whether there is a newer version. The other brings better wordings of help texts and links.</source>
        <translation>Die eine sagt, ob es eine neuere Version gibt. Die andere bringt bessere Hilfetexte und Links.</translation>
    </message>
    <message>
        <source>Nothing about you is sent</source>
        <translation>Nichts über dich wird gesendet</translation>
    </message>
    <message>
        <source>No name, no number of this Mac, nothing about your apps, not even the version that you use. As with every page that you open, the server sees your internet address.</source>
        <translation>Kein Name, keine Nummer dieses Mac, nichts über deine Apps, nicht einmal deine Version. Wie bei jeder Seite, die du öffnest, sieht der Server deine Internetadresse.</translation>
    </message>
    <message>
        <source>Only one address is asked</source>
        <translation>Nur eine Adresse wird gefragt</translation>
    </message>
    <message>
        <source>%1, over a secure connection. An answer that is not signed by the makers of Tavrik is thrown away.</source>
        <translation>%1, über eine sichere Verbindung. Eine Antwort, die nicht von den Machern von Tavrik signiert ist, wird weggeworfen.</translation>
    </message>
    <message>
        <source>Nothing is installed by itself</source>
        <translation>Nichts wird von selbst installiert</translation>
    </message>
    <message>
        <source>You decide about every version. You can change your answer at any time in the settings, below Updates.</source>
        <translation>Du entscheidest über jede Version. Deine Antwort kannst du jederzeit in den Einstellungen unter „Updates“ ändern.</translation>
    </message>
    <message>
        <source>Don’t Allow</source>
        <translation>Nicht erlauben</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>Erlauben</translation>
    </message>
</context>
<context>
    <name>Core</name>
    <message>
        <source>The Launchpad database is missing.</source>
        <translation>Die Launchpad-Datenbank fehlt.</translation>
    </message>
    <message>
        <source>The Launchpad database cannot be read: %1.</source>
        <translation>Die Launchpad-Datenbank kann nicht gelesen werden: %1.</translation>
    </message>
    <message>
        <source>The Launchpad database is damaged: %1.</source>
        <translation>Die Launchpad-Datenbank ist beschädigt: %1.</translation>
    </message>
    <message>
        <source>The Launchpad database has not the form that is known: %1.</source>
        <translation>Die Launchpad-Datenbank hat nicht die bekannte Form: %1.</translation>
    </message>
    <message>
        <source>The Launchpad database has not the form that is known: it lacks %1.</source>
        <translation>Die Launchpad-Datenbank hat nicht die bekannte Form: Es fehlt %1.</translation>
    </message>
    <message>
        <source>The Dock&apos;s preferences cannot be read: %1.</source>
        <translation>Die Einstellungen des Docks können nicht gelesen werden: %1.</translation>
    </message>
    <message>
        <source>The Dock&apos;s preferences are missing: %1.</source>
        <translation>Die Einstellungen des Docks fehlen: %1.</translation>
    </message>
    <message>
        <source>This Mac does not tell its serial number, so that backups can be neither made nor opened.</source>
        <translation>Dieser Mac verrät seine Seriennummer nicht; Backups lassen sich deshalb weder anlegen noch öffnen.</translation>
    </message>
    <message>
        <source>Nothing is applied without a backup.</source>
        <translation>Ohne Backup wird nichts angewendet.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be used. %2</source>
        <translation>„%1“ ist nicht zu gebrauchen. %2</translation>
    </message>
    <message>
        <source>Another backup may serve. Delete the file if you do not need it.</source>
        <translation>Ein anderes Backup tut es vielleicht. Lösche die Datei, wenn du sie nicht brauchst.</translation>
    </message>
    <message>
        <source>%1 applications stand on other pages than in the newest backup.</source>
        <translation>%1 Apps stehen auf anderen Seiten als im neuesten Backup.</translation>
    </message>
    <message>
        <source>If it was not you who moved them, look at the state before under “Backups”, and restore it.</source>
        <translation>Wenn nicht du sie bewegt hast, sieh dir unter „Backups“ den Stand davor an und stelle ihn wieder her.</translation>
    </message>
    <message>
        <source>An apply is under way, or was stopped half-way.</source>
        <translation>Ein Anwenden läuft oder wurde auf halbem Weg angehalten.</translation>
    </message>
    <message>
        <source>The repair takes up where it was stopped. What it was to apply stays staged: apply it once more, and it is carried to its end.</source>
        <translation>Die Reparatur macht dort weiter, wo es angehalten wurde. Was angewendet werden sollte, bleibt vorgemerkt; wende es noch einmal an, um es zu Ende zu bringen.</translation>
    </message>
    <message>
        <source>A restore is under way, or was stopped half-way: what was there before it is in %1.</source>
        <translation>Ein Wiederherstellen läuft oder wurde auf halbem Weg angehalten: Was davor da war, liegt in %1.</translation>
    </message>
    <message>
        <source>Restore the same backup again under “Backups”. That finishes it, and removes the copy.</source>
        <translation>Stelle unter „Backups“ dasselbe Backup noch einmal wieder her. Das bringt es zu Ende und entfernt die Kopie.</translation>
    </message>
    <message>
        <source>%1 was left behind by a program that was stopped.</source>
        <translation>%1 wurde von einem angehaltenen Programm zurückgelassen.</translation>
    </message>
    <message>
        <source>The repair deletes it.</source>
        <translation>Die Reparatur löscht es.</translation>
    </message>
    <message>
        <source>%1 is a link or a file where a folder belongs, so nothing is changed in it.</source>
        <translation>%1 ist ein Link oder eine Datei, wo ein Ordner hingehört; darin wird deshalb nichts geändert.</translation>
    </message>
    <message>
        <source>Move it away.</source>
        <translation>Bewege es an einen anderen Ort.</translation>
    </message>
    <message>
        <source>%1 can be read by other users of this Mac.</source>
        <translation>%1 kann von anderen Benutzern dieses Mac gelesen werden.</translation>
    </message>
    <message>
        <source>&quot;chmod 700&quot; with this folder keeps them out.</source>
        <translation>„chmod 700“ mit diesem Ordner hält sie fern.</translation>
    </message>
    <message>
        <source>The icon that %1 shows is not kept any more.</source>
        <translation>Das Symbol, das %1 zeigt, ist nicht mehr aufbewahrt.</translation>
    </message>
    <message>
        <source>It stays on the wrapper. It cannot be written again, should the wrapper lose it.</source>
        <translation>Es bleibt auf dem Wrapper. Es kann nicht neu geschrieben werden, falls der Wrapper es verliert.</translation>
    </message>
    <message>
        <source>%1 is to show an icon that is not there.</source>
        <translation>%1 soll ein Symbol zeigen, das nicht da ist.</translation>
    </message>
    <message>
        <source>The repair notes that it shows its own.</source>
        <translation>Die Reparatur merkt sich, dass es das eigene zeigt.</translation>
    </message>
    <message>
        <source>An icon is noted as the one that %1 shows, and it is not restyled.</source>
        <translation>Ein Symbol ist als das von %1 vermerkt, aber die App ist nicht umgestaltet.</translation>
    </message>
    <message>
        <source>The repair stages the icon again. The next apply restyles the application.</source>
        <translation>Die Reparatur merkt das Symbol wieder vor. Das nächste Anwenden gestaltet die App um.</translation>
    </message>
    <message>
        <source>Icons are kept for %1, which is not installed.</source>
        <translation>Für %1 sind Symbole aufbewahrt, aber die App ist nicht installiert.</translation>
    </message>
    <message>
        <source>They are yours, and stay until you delete %1.</source>
        <translation>Sie gehören dir und bleiben, bis du %1 löschst.</translation>
    </message>
    <message>
        <source>An icon is noted for %1, which is not installed.</source>
        <translation>Für %1 ist ein Symbol vermerkt, aber die App ist nicht installiert.</translation>
    </message>
    <message>
        <source>The repair forgets which.</source>
        <translation>Die Reparatur vergisst, welches.</translation>
    </message>
    <message>
        <source>“Restore” under “Backups” puts one in its place.</source>
        <translation>Unter „Backups“ lässt sich an seiner Stelle ein Backup wiederherstellen.</translation>
    </message>
    <message>
        <source>Close other programs that use it, open Launchpad once, and look again. If that does not help, %1</source>
        <translation>Schließe andere Programme, die sie verwenden, öffne einmal Launchpad und sieh noch einmal nach. Wenn das nicht hilft: %1</translation>
    </message>
    <message>
        <source>The Launchpad database lacks the switch of its triggers, so it does not keep the order of its pages.</source>
        <translation>Der Launchpad-Datenbank fehlt der Schalter ihrer Trigger; sie hält deshalb die Reihenfolge ihrer Seiten nicht ein.</translation>
    </message>
    <message>
        <source>The triggers of the Launchpad database are switched off, so it does not keep the order of its pages.</source>
        <translation>Die Trigger der Launchpad-Datenbank sind ausgeschaltet; sie hält deshalb die Reihenfolge ihrer Seiten nicht ein.</translation>
    </message>
    <message>
        <source>The repair switches them on.</source>
        <translation>Die Reparatur schaltet sie ein.</translation>
    </message>
    <message>
        <source>The settings are missing or damaged; their copy is sound.</source>
        <translation>Die Einstellungen fehlen oder sind beschädigt; ihre Kopie ist heil.</translation>
    </message>
    <message>
        <source>The repair puts the copy in their place. The change before the last may be the newest in it.</source>
        <translation>Die Reparatur setzt die Kopie an ihre Stelle. Die vorletzte Änderung ist womöglich die neueste darin.</translation>
    </message>
    <message>
        <source>The settings are lost, and so is what was known of restyled applications.</source>
        <translation>Die Einstellungen sind verloren, und damit das Wissen über umgestaltete Apps.</translation>
    </message>
    <message>
        <source>Restore a backup under “Backups”: it shows every application as it is without Tavrik. Icons, themes and backups are there.</source>
        <translation>Stelle ein Backup wieder her: Es zeigt jede App wie ohne Tavrik. Symbole, Themen und Backups sind noch da.</translation>
    </message>
    <message>
        <source>What is staged cannot be read: %1.</source>
        <translation>Was vorgemerkt ist, kann nicht gelesen werden: %1.</translation>
    </message>
    <message>
        <source>The repair puts the file aside, beside where it is, so that staging starts anew.</source>
        <translation>Die Reparatur legt die Datei an Ort und Stelle beiseite, damit das Vormerken neu beginnen kann.</translation>
    </message>
    <message>
        <source>%1 has a row in Launchpad without flags, which is not listed, so it cannot be restyled.</source>
        <translation>%1 hat in Launchpad eine Zeile ohne Kennzeichen, die nicht aufgelistet wird; deshalb kann die App nicht umgestaltet werden.</translation>
    </message>
    <message>
        <source>Such rows come from other tools, and are left as they are. Row %1.</source>
        <translation>Solche Zeilen stammen von anderen Werkzeugen und bleiben, wie sie sind. Zeile %1.</translation>
    </message>
    <message>
        <source>The Dock&apos;s tile of %1 leads past its wrapper.</source>
        <translation>Die Kachel von %1 im Dock führt an ihrem Wrapper vorbei.</translation>
    </message>
    <message>
        <source>The repair points it at the wrapper.</source>
        <translation>Die Reparatur richtet sie auf den Wrapper.</translation>
    </message>
    <message>
        <source>The Dock&apos;s tile of %1 leads to a wrapper that is gone.</source>
        <translation>Die Kachel von %1 im Dock führt zu einem Wrapper, den es nicht mehr gibt.</translation>
    </message>
    <message>
        <source>The application is gone too: drag the tile out of the Dock.</source>
        <translation>Auch die App gibt es nicht mehr: Ziehe die Kachel aus dem Dock.</translation>
    </message>
    <message>
        <source>The repair points it at the application again.</source>
        <translation>Die Reparatur richtet sie wieder auf die App.</translation>
    </message>
    <message>
        <source>A bookmark is kept for the Dock&apos;s tile of %1, which needs none: it is not restyled.</source>
        <translation>Für die Kachel von %1 im Dock ist ein Lesezeichen aufbewahrt, das sie nicht braucht: Die App ist nicht umgestaltet.</translation>
    </message>
    <message>
        <source>The repair forgets it.</source>
        <translation>Die Reparatur vergisst es.</translation>
    </message>
    <message>
        <source>A label in the Dock is still in a styled alphabet: %1.</source>
        <translation>Ein Etikett im Dock steht noch in einem gestalteten Alphabet: %1.</translation>
    </message>
    <message>
        <source>A folder&apos;s title is still in a styled alphabet: %1.</source>
        <translation>Der Titel eines Ordners steht noch in einem gestalteten Alphabet: %1.</translation>
    </message>
    <message>
        <source>A title is still in a styled alphabet: %1.</source>
        <translation>Ein Titel steht noch in einem gestalteten Alphabet: %1.</translation>
    </message>
    <message>
        <source>A label in the Dock is not in &quot;%1&quot;: %2.</source>
        <translation>Ein Etikett im Dock steht nicht in „%1“: %2.</translation>
    </message>
    <message>
        <source>A folder&apos;s title is not in &quot;%1&quot;: %2.</source>
        <translation>Der Titel eines Ordners steht nicht in „%1“: %2.</translation>
    </message>
    <message>
        <source>A title is not in &quot;%1&quot;: %2.</source>
        <translation>Ein Titel steht nicht in „%1“: %2.</translation>
    </message>
    <message>
        <source>The repair makes all names plain.</source>
        <translation>Die Reparatur macht alle Namen schlicht.</translation>
    </message>
    <message>
        <source>The repair writes all names in the style.</source>
        <translation>Die Reparatur schreibt alle Namen in diesem Stil.</translation>
    </message>
    <message>
        <source>A change of the names&apos; style is under way, or was stopped half-way.</source>
        <translation>Ein Wechsel des Stils der Namen läuft oder wurde auf halbem Weg angehalten.</translation>
    </message>
    <message>
        <source>The repair writes all names in &quot;%1&quot;.</source>
        <translation>Die Reparatur schreibt alle Namen in „%1“.</translation>
    </message>
    <message>
        <source>The repair gives the application its own look back and stages its icon again, if one is chosen. The next apply restyles it.</source>
        <translation>Die Reparatur gibt der App ihr eigenes Aussehen zurück und merkt ihr Symbol wieder vor, wenn eines gewählt ist. Das nächste Anwenden gestaltet sie um.</translation>
    </message>
    <message>
        <source>Restyling %1, or giving it its own look back, is under way or was stopped half-way.</source>
        <translation>Das Umgestalten von %1 oder das Zurückgeben ihres Aussehens läuft oder wurde auf halbem Weg angehalten.</translation>
    </message>
    <message>
        <source>%1 was deleted, and its wrapper is left.</source>
        <translation>%1 wurde gelöscht, ihr Wrapper ist noch da.</translation>
    </message>
    <message>
        <source>The repair removes the wrapper. The icons that are kept for the application stay.</source>
        <translation>Die Reparatur entfernt den Wrapper. Die für die App aufbewahrten Symbole bleiben.</translation>
    </message>
    <message>
        <source>%1 is restyled, but its wrapper is gone.</source>
        <translation>%1 ist umgestaltet, aber ihr Wrapper ist verschwunden.</translation>
    </message>
    <message>
        <source>%1 is a link or a file where the wrapper of %2 belongs.</source>
        <translation>%1 ist ein Link oder eine Datei, wo der Wrapper von %2 hingehört.</translation>
    </message>
    <message>
        <source>Move it away, and look again.</source>
        <translation>Bewege es an einen anderen Ort und sieh noch einmal nach.</translation>
    </message>
    <message>
        <source>Move %1 to where it belongs, and look again.</source>
        <translation>Bewege %1 dorthin, wo es hingehört, und sieh noch einmal nach.</translation>
    </message>
    <message>
        <source>Launchpad no longer holds %1 and its wrapper as they were exchanged.</source>
        <translation>Launchpad führt %1 und ihren Wrapper nicht mehr so, wie sie getauscht wurden.</translation>
    </message>
    <message>
        <source>The wrapper of %1 has lost its icon.</source>
        <translation>Der Wrapper von %1 hat sein Symbol verloren.</translation>
    </message>
    <message>
        <source>The repair writes it again.</source>
        <translation>Die Reparatur schreibt es neu.</translation>
    </message>
    <message>
        <source>It is not kept. Choose one for it again, and apply.</source>
        <translation>Es ist nicht aufbewahrt. Wähle wieder eines und wende es an.</translation>
    </message>
    <message>
        <source>%1 was updated or installed anew since it was restyled.</source>
        <translation>%1 wurde seit dem Umgestalten aktualisiert oder neu installiert.</translation>
    </message>
    <message>
        <source>Nothing needs to be done: its wrapper leads to what is there now.</source>
        <translation>Es ist nichts zu tun: Der Wrapper führt zu dem, was jetzt da ist.</translation>
    </message>
    <message>
        <source>%1 is no wrapper: it holds files of its own, or is a link.</source>
        <translation>%1 ist kein Wrapper: Es enthält eigene Dateien oder ist ein Link.</translation>
    </message>
    <message>
        <source>Move it to where it belongs.</source>
        <translation>Bewege es dorthin, wo es hingehört.</translation>
    </message>
    <message>
        <source>%1 belongs to no application that is restyled, or is half-made.</source>
        <translation>%1 gehört zu keiner umgestalteten App oder ist halb fertig.</translation>
    </message>
    <message>
        <source>The repair removes it, and stages the application&apos;s icon again, if one is chosen.</source>
        <translation>Die Reparatur entfernt es und merkt das Symbol der App wieder vor, wenn eines gewählt ist.</translation>
    </message>
    <message>
        <source>It could not be done; the log says at which step it failed.</source>
        <translation>Es gelang nicht; das Protokoll sagt, bei welchem Schritt.</translation>
    </message>
    <message>
        <source>The copy was put in the place of the settings.</source>
        <translation>Die Kopie wurde an die Stelle der Einstellungen gesetzt.</translation>
    </message>
    <message>
        <source>The file was put aside.</source>
        <translation>Die Datei wurde beiseitegelegt.</translation>
    </message>
    <message>
        <source>What was left of it was taken up.</source>
        <translation>Was davon übrig war, wurde aufgenommen.</translation>
    </message>
    <message>
        <source>It was forgotten.</source>
        <translation>Es wurde vergessen.</translation>
    </message>
    <message>
        <source>The repair has no way to mend it.</source>
        <translation>Die Reparatur kann das nicht beheben.</translation>
    </message>
    <message>
        <source>Launchpad and the Dock were left alone. %1</source>
        <translation>Launchpad und Dock wurden in Ruhe gelassen. %1</translation>
    </message>
    <message>
        <source>It is not there any more.</source>
        <translation>Es ist nicht mehr da.</translation>
    </message>
    <message>
        <source>It was deleted.</source>
        <translation>Es wurde gelöscht.</translation>
    </message>
    <message>
        <source>It could not be deleted: %1.</source>
        <translation>Es konnte nicht gelöscht werden: %1.</translation>
    </message>
    <message>
        <source>They could not be switched on: %1.</source>
        <translation>Sie konnten nicht eingeschaltet werden: %1.</translation>
    </message>
    <message>
        <source>They were switched on.</source>
        <translation>Sie wurden eingeschaltet.</translation>
    </message>
    <message>
        <source>%1 has its own look back. No icon is chosen for it now.</source>
        <translation>%1 hat ihr eigenes Aussehen zurück. Für sie ist jetzt kein Symbol gewählt.</translation>
    </message>
    <message>
        <source>%1 has its own look back, and its icon is staged. The next apply restyles it.</source>
        <translation>%1 hat ihr eigenes Aussehen zurück, und ihr Symbol ist vorgemerkt. Das nächste Anwenden gestaltet sie um.</translation>
    </message>
    <message>
        <source>It was removed.</source>
        <translation>Es wurde entfernt.</translation>
    </message>
    <message>
        <source>It could not be removed: %1.</source>
        <translation>Es konnte nicht entfernt werden: %1.</translation>
    </message>
    <message>
        <source>The wrapper was removed.</source>
        <translation>Der Wrapper wurde entfernt.</translation>
    </message>
    <message>
        <source>It is noted that %1 shows its own icon.</source>
        <translation>Es ist vermerkt, dass %1 das eigene Symbol zeigt.</translation>
    </message>
    <message>
        <source>The icon cannot be read. Choose another one, and apply.</source>
        <translation>Das Symbol kann nicht gelesen werden. Wähle ein anderes und wende es an.</translation>
    </message>
    <message>
        <source>The icon was written again.</source>
        <translation>Das Symbol wurde neu geschrieben.</translation>
    </message>
    <message>
        <source>The tile leads to the wrapper.</source>
        <translation>Die Kachel führt zum Wrapper.</translation>
    </message>
    <message>
        <source>The bookmark was forgotten.</source>
        <translation>Das Lesezeichen wurde vergessen.</translation>
    </message>
    <message>
        <source>The tile leads to the application.</source>
        <translation>Die Kachel führt zur App.</translation>
    </message>
    <message>
        <source>All names were written.</source>
        <translation>Alle Namen wurden geschrieben.</translation>
    </message>
    <message>
        <source>All names are in plain text.</source>
        <translation>Alle Namen stehen in schlichten Buchstaben.</translation>
    </message>
    <message>
        <source>The folder %1 stays, because it holds what is not Tavrik&apos;s: %2.</source>
        <translation>Der Ordner %1 bleibt, weil er enthält, was nicht von Tavrik ist: %2.</translation>
    </message>
    <message>
        <source>The folder %1 is gone.</source>
        <translation>Der Ordner %1 ist entfernt.</translation>
    </message>
    <message>
        <source>What is left cannot be told. %1</source>
        <translation>Was noch da ist, lässt sich nicht sagen. %1</translation>
    </message>
    <message>
        <source>Tavrik&apos;s files are needed until the last trace is removed. %1</source>
        <translation>Die Dateien von Tavrik werden gebraucht, bis die letzte Spur entfernt ist. %1</translation>
    </message>
    <message>
        <source>The program&apos;s preferences could not be removed: %1.</source>
        <translation>Die Einstellungen des Programms konnten nicht entfernt werden: %1.</translation>
    </message>
    <message>
        <source>A copy of the Dock&apos;s preferences could not be removed: %1.</source>
        <translation>Eine Kopie der Einstellungen des Docks konnte nicht entfernt werden: %1.</translation>
    </message>
    <message>
        <source>%1 could not be emptied: %2.</source>
        <translation>%1 konnte nicht geleert werden: %2.</translation>
    </message>
    <message>
        <source>%1 could not be removed: %2 is in it still.</source>
        <translation>%1 konnte nicht entfernt werden: %2 ist noch darin.</translation>
    </message>
    <message>
        <source>%1 could not be removed: %2.</source>
        <translation>%1 konnte nicht entfernt werden: %2.</translation>
    </message>
    <message>
        <source>%1 has a wrapper, by the settings.</source>
        <translation>%1 hat laut Einstellungen einen Wrapper.</translation>
    </message>
    <message>
        <source>%1 stands in the place of its wrapper.</source>
        <translation>%1 steht an der Stelle ihres Wrappers.</translation>
    </message>
    <message>
        <source>What was begun for %1 was stopped half-way.</source>
        <translation>Was für %1 begonnen wurde, blieb auf halbem Weg stehen.</translation>
    </message>
    <message>
        <source>Launchpad still knows the wrapper of %1.</source>
        <translation>Launchpad kennt noch den Wrapper von %1.</translation>
    </message>
    <message>
        <source>The tile of %1 in the Dock leads to a wrapper.</source>
        <translation>Die Kachel von %1 im Dock führt zu einem Wrapper.</translation>
    </message>
    <message>
        <source>An application in Launchpad is called %1.</source>
        <translation>Eine App in Launchpad heißt %1.</translation>
    </message>
    <message>
        <source>A folder in Launchpad is called %1.</source>
        <translation>Ein Ordner in Launchpad heißt %1.</translation>
    </message>
    <message>
        <source>A tile in the Dock is called %1.</source>
        <translation>Eine Kachel im Dock heißt %1.</translation>
    </message>
    <message>
        <source>The names are in %1, by the settings.</source>
        <translation>Laut Einstellungen stehen die Namen in %1.</translation>
    </message>
    <message>
        <source>A change of the names was stopped half-way.</source>
        <translation>Ein Wechsel der Namen wurde auf halbem Weg angehalten.</translation>
    </message>
    <message>
        <source>The wrapper %1 stands in the folder of the wrappers.</source>
        <translation>Der Wrapper %1 steht im Ordner der Wrapper.</translation>
    </message>
    <message>
        <source>The folder of the wrappers is there.</source>
        <translation>Den Ordner der Wrapper gibt es noch.</translation>
    </message>
    <message>
        <source>An icon of %1 is marked as in use.</source>
        <translation>Ein Symbol von %1 ist als verwendet vermerkt.</translation>
    </message>
    <message>
        <source>%1 cannot be looked at: %2.</source>
        <translation>%1 kann nicht angesehen werden: %2.</translation>
    </message>
    <message>
        <source>%1 is a symbolic link</source>
        <translation>%1 ist ein symbolischer Link</translation>
    </message>
    <message>
        <source>This application has its own look back: %1.</source>
        <translation>Diese App hat ihr eigenes Aussehen zurück: %1.</translation>
    </message>
    <message>
        <source>These applications have their own look back: %1.</source>
        <translation>Diese Apps haben ihr eigenes Aussehen zurück: %1.</translation>
    </message>
    <message>
        <source>The tiles in the Dock lead to the applications themselves: %1.</source>
        <translation>Die Kacheln im Dock führen zu den Apps selbst: %1.</translation>
    </message>
    <message>
        <source>The wrapper %1, which stood for no application, is gone.</source>
        <translation>Der Wrapper %1, der für keine App stand, ist entfernt.</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 und %2</translation>
    </message>
    <message>
        <source>%1, %2 (planned, and not so)</source>
        <translation>%1, %2 (geplant, aber nicht so)</translation>
    </message>
    <message>
        <source>%1, %2 (not planned)</source>
        <translation>%1, %2 (nicht geplant)</translation>
    </message>
    <message>
        <source>The Launchpad database is missing. Open Launchpad once, so that the Dock makes it, and try again.</source>
        <translation>Die Launchpad-Datenbank fehlt. Öffne einmal Launchpad, damit das Dock sie anlegt, und versuche es noch einmal.</translation>
    </message>
    <message>
        <source>The Launchpad database has not the form that is known: it lacks %1. The system may have been updated; look for a newer version of Tavrik.</source>
        <translation>Die Launchpad-Datenbank hat nicht die bekannte Form: Es fehlt %1. Vielleicht wurde das System aktualisiert; suche nach einer neueren Version von Tavrik.</translation>
    </message>
    <message>
        <source>The Launchpad database is locked by another program, or cannot be read. Close other programs that use it, and try again.</source>
        <translation>Die Launchpad-Datenbank ist von einem anderen Programm gesperrt oder nicht lesbar. Schließe andere Programme, die sie verwenden, und versuche es noch einmal.</translation>
    </message>
    <message>
        <source>%1 is a link or a file where a folder belongs. Move it away, and try again.</source>
        <translation>%1 ist ein Link oder eine Datei, wo ein Ordner hingehört. Bewege es an einen anderen Ort und versuche es noch einmal.</translation>
    </message>
    <message>
        <source>The disk is too full: %1 are needed, and %2 are free. Make room, and try again.</source>
        <translation>Das Volume ist zu voll: %1 werden gebraucht, %2 sind frei. Schaffe Platz und versuche es noch einmal.</translation>
    </message>
    <message>
        <source>The Dock&apos;s preferences cannot be read: %1. A backup of them can be restored in the settings, under “Backups”.</source>
        <translation>Die Einstellungen des Docks können nicht gelesen werden: %1. Ein Backup davon lässt sich unter „Backups“ wiederherstellen.</translation>
    </message>
    <message>
        <source>The folder of the wrappers cannot be read: %1.</source>
        <translation>Der Ordner der Wrapper kann nicht gelesen werden: %1.</translation>
    </message>
    <message>
        <source>The Launchpad database cannot be read: %1. Close other programs that use it, and try again.</source>
        <translation>Die Launchpad-Datenbank kann nicht gelesen werden: %1. Schließe andere Programme, die sie verwenden, und versuche es noch einmal.</translation>
    </message>
    <message>
        <source>it is not there</source>
        <translation>sie ist nicht da</translation>
    </message>
    <message>
        <source>page %1, place %2</source>
        <translation>Seite %1, Platz %2</translation>
    </message>
    <message>
        <source>page %1</source>
        <translation>Seite %1</translation>
    </message>
    <message>
        <source>folder %1</source>
        <translation>Ordner %1</translation>
    </message>
    <message>
        <source>its wrapper</source>
        <translation>der Wrapper</translation>
    </message>
    <message>
        <source>its own</source>
        <translation>das eigene</translation>
    </message>
    <message>
        <source>icon %1</source>
        <translation>Symbol %1</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nichts</translation>
    </message>
    <message>
        <source>nowhere</source>
        <translation>nirgends</translation>
    </message>
    <message>
        <source>%1 (staged)</source>
        <translation>%1 (vorgemerkt)</translation>
    </message>
    <message>
        <source>%1: %2 is deleted</source>
        <translation>%1: %2 wird gelöscht</translation>
    </message>
    <message>
        <source>%1: %2 is shown again</source>
        <translation>%1: %2 wird wieder gezeigt</translation>
    </message>
    <message>
        <source>%1: one goes</source>
        <translation>%1: eine entfällt</translation>
    </message>
    <message>
        <source>%1: one is left</source>
        <translation>%1: eine bleibt</translation>
    </message>
    <message>
        <source>%1: %2 -&gt; %3</source>
        <translation>%1: %2 → %3</translation>
    </message>
    <message>
        <source>%1 -&gt; %2</source>
        <translation>%1 → %2</translation>
    </message>
    <message>
        <source>%1 is made</source>
        <translation>%1 wird angelegt</translation>
    </message>
    <message>
        <source>%1 is removed</source>
        <translation>%1 wird entfernt</translation>
    </message>
    <message>
        <source>%1 is deleted</source>
        <translation>%1 wird gelöscht</translation>
    </message>
    <message>
        <source>Launchpad does not know it. Its icons are kept.</source>
        <translation>Launchpad kennt sie nicht. Ihre Symbole bleiben aufbewahrt.</translation>
    </message>
    <message>
        <source>Its new icon could not be set.</source>
        <translation>Ihr neues Symbol konnte nicht gesetzt werden.</translation>
    </message>
    <message>
        <source>Not all of its own look could be brought back; the log says what.</source>
        <translation>Nicht alles von ihrem eigenen Aussehen konnte zurückgebracht werden; das Protokoll sagt, was.</translation>
    </message>
    <message>
        <source>Its icon could not be read.</source>
        <translation>Ihr Symbol konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Its wrapper could not be built.</source>
        <translation>Ihr Wrapper konnte nicht gebaut werden.</translation>
    </message>
    <message>
        <source>Launchpad did not take its wrapper in, so it looks as before.</source>
        <translation>Launchpad hat ihren Wrapper nicht aufgenommen; sie sieht aus wie zuvor.</translation>
    </message>
    <message>
        <source>These applications are running and must be closed first: %1.</source>
        <translation>Diese Programme laufen und müssen zuerst geschlossen werden: %1.</translation>
    </message>
    <message>
        <source>These applications could not be closed: %1. Close them by hand, and try again.</source>
        <translation>Diese Programme konnten nicht geschlossen werden: %1. Schließe sie von Hand und versuche es noch einmal.</translation>
    </message>
    <message>
        <source>What is staged could not be written to its recovery file, so that a crash could lose it. See that there is space on the disk, and try again.</source>
        <translation>Was vorgemerkt ist, konnte nicht in seine Sicherungsdatei geschrieben werden; bei einem Absturz ginge es verloren. Sorge für Platz auf dem Volume und versuche es noch einmal.</translation>
    </message>
    <message>
        <source>No backup could be taken, so nothing was changed. %1</source>
        <translation>Es konnte kein Backup angelegt werden; deshalb wurde nichts geändert. %1</translation>
    </message>
    <message>
        <source>Its icons cannot be read. They stay staged.</source>
        <translation>Ihre Symbole können nicht gelesen werden. Sie bleiben vorgemerkt.</translation>
    </message>
    <message>
        <source>Its icons could not be moved: nothing can be written. They stay staged.</source>
        <translation>Ihre Symbole konnten nicht bewegt werden: Es kann nichts geschrieben werden. Sie bleiben vorgemerkt.</translation>
    </message>
    <message>
        <source>The backup cannot be read: see that its file is still there and that its rights let you read it.</source>
        <translation>Das Backup kann nicht gelesen werden: Sieh nach, ob seine Datei noch da ist und ob du sie lesen darfst.</translation>
    </message>
    <message>
        <source>The backup is damaged, cut short or was made on another Mac: choose another one, or restore it on the Mac that made it.</source>
        <translation>Das Backup ist beschädigt, abgeschnitten oder von einem anderen Mac: Wähle ein anderes oder stelle es auf dem Mac wieder her, der es angelegt hat.</translation>
    </message>
    <message>
        <source>The backup opens, but what is in it is no archive: choose another one.</source>
        <translation>Das Backup lässt sich öffnen, enthält aber kein Archiv: Wähle ein anderes.</translation>
    </message>
    <message>
        <source>The backup holds no Dock preferences: choose another one.</source>
        <translation>Das Backup enthält keine Einstellungen des Docks: Wähle ein anderes.</translation>
    </message>
    <message>
        <source>The backup holds no Launchpad database: choose another one.</source>
        <translation>Das Backup enthält keine Launchpad-Datenbank: Wähle ein anderes.</translation>
    </message>
    <message>
        <source>The Dock preferences in the backup are damaged: choose another one.</source>
        <translation>Die Einstellungen des Docks im Backup sind beschädigt: Wähle ein anderes.</translation>
    </message>
    <message>
        <source>The Launchpad database in the backup is damaged or is not Launchpad&apos;s: choose another one.</source>
        <translation>Die Launchpad-Datenbank im Backup ist beschädigt oder keine von Launchpad: Wähle ein anderes.</translation>
    </message>
    <message>
        <source>The backup cannot be used: choose another one.</source>
        <translation>Das Backup ist nicht zu gebrauchen: Wähle ein anderes.</translation>
    </message>
    <message>
        <source>The backups cannot be looked at: %1.</source>
        <translation>Die Backups können nicht angesehen werden: %1.</translation>
    </message>
    <message>
        <source>There is no backup named &quot;%1&quot;.</source>
        <translation>Es gibt kein Backup namens „%1“.</translation>
    </message>
    <message>
        <source>No backup was made. %1</source>
        <translation>Es wurde kein Backup angelegt. %1</translation>
    </message>
    <message>
        <source>It could not be sealed.</source>
        <translation>Es konnte nicht versiegelt werden.</translation>
    </message>
    <message>
        <source>The restore failed: %1. Restoring the same backup again finishes it; until then, files whose names end in &quot;.pre-restore-backup&quot; hold what was there before.</source>
        <translation>Das Wiederherstellen ist gescheitert: %1. Dasselbe Backup noch einmal wiederherzustellen bringt es zu Ende; bis dahin enthalten Dateien, deren Namen auf „.pre-restore-backup“ enden, was vorher da war.</translation>
    </message>
    <message>
        <source>Nothing was changed, because the present state could not be kept. %1</source>
        <translation>Nichts wurde geändert, weil der jetzige Stand nicht bewahrt werden konnte. %1</translation>
    </message>
    <message>
        <source>the names of %1 seconds are taken in %2</source>
        <translation>die Namen von %1 Sekunden sind in %2 vergeben</translation>
    </message>
    <message>
        <source>%1 does not hold what was written</source>
        <translation>%1 enthält nicht, was geschrieben wurde</translation>
    </message>
    <message>
        <source>%1 could not be removed</source>
        <translation>%1 konnte nicht entfernt werden</translation>
    </message>
    <message>
        <source>%1 differs from what was written</source>
        <translation>%1 weicht von dem ab, was geschrieben wurde</translation>
    </message>
    <message>
        <source>%1 is damaged</source>
        <translation>%1 ist beschädigt</translation>
    </message>
    <message>
        <source>the cleaned copy of the stores is damaged</source>
        <translation>die bereinigte Kopie ist beschädigt</translation>
    </message>
    <message>
        <source>“%1” is not a picture of a kind that can be read.</source>
        <translation>„%1“ ist kein Bild einer lesbaren Art.</translation>
    </message>
    <message>
        <source>“%1” is empty.</source>
        <translation>„%1“ ist leer.</translation>
    </message>
    <message>
        <source>“%1” is cut short: it ends before the picture does.</source>
        <translation>„%1“ ist abgeschnitten: Die Datei endet vor dem Bild.</translation>
    </message>
    <message>
        <source>“%1” is damaged and cannot be read.</source>
        <translation>„%1“ ist beschädigt und nicht lesbar.</translation>
    </message>
    <message>
        <source>“%1” is too large: %2 by %3 pixels.</source>
        <translation>„%1“ ist zu groß: %2 mal %3 Pixel.</translation>
    </message>
    <message>
        <source>“%1” is an icon file without a picture that can be read here.</source>
        <translation>„%1“ ist eine Symboldatei ohne ein Bild, das hier gelesen werden kann.</translation>
    </message>
    <message>
        <source>“%1” is a drawing that cannot be read.</source>
        <translation>„%1“ ist eine Zeichnung, die nicht gelesen werden kann.</translation>
    </message>
    <message>
        <source>“%1” is a drawing that takes in other files.</source>
        <translation>„%1“ ist eine Zeichnung, die andere Dateien einbindet.</translation>
    </message>
    <message>
        <source>Use a PNG, JPEG, TIFF, WebP, GIF, BMP, SVG, ICO or ICNS picture.</source>
        <translation>Verwende ein Bild als PNG, JPEG, TIFF, WebP, GIF, BMP, SVG, ICO oder ICNS.</translation>
    </message>
    <message>
        <source>Copy, export or download it again.</source>
        <translation>Kopiere, exportiere oder lade es noch einmal.</translation>
    </message>
    <message>
        <source>Open it in a picture editor and export it again as PNG.</source>
        <translation>Öffne es in einem Bildprogramm und exportiere es noch einmal als PNG.</translation>
    </message>
    <message>
        <source>Scale it down; 1024 by 1024 pixels is all that an icon needs, and %1 a side is the most that is read.</source>
        <translation>Verkleinere es; 1024 mal 1024 Pixel genügen für ein Symbol, und mehr als %1 je Seite werden nicht gelesen.</translation>
    </message>
    <message>
        <source>Open it in a picture editor and export its largest picture as PNG.</source>
        <translation>Öffne es in einem Bildprogramm und exportiere sein größtes Bild als PNG.</translation>
    </message>
    <message>
        <source>Export it again as plain SVG, or as PNG.</source>
        <translation>Exportiere es noch einmal als einfaches SVG oder als PNG.</translation>
    </message>
    <message>
        <source>Export it with its pictures embedded, or as PNG.</source>
        <translation>Exportiere es mit eingebetteten Bildern oder als PNG.</translation>
    </message>
    <message>
        <source>“%1” has no icon in this place.</source>
        <translation>„%1“ hat an dieser Stelle kein Symbol.</translation>
    </message>
    <message>
        <source>“%1” is not in the list.</source>
        <translation>„%1“ ist nicht in der Liste.</translation>
    </message>
    <message>
        <source>The icon for “%1” could not be added. Try again.</source>
        <translation>Das Symbol für „%1“ konnte nicht hinzugefügt werden. Versuche es noch einmal.</translation>
    </message>
    <message>
        <source>The theme offers no icon “%1” for “%2”.</source>
        <translation>Das Thema bietet kein Symbol „%1“ für „%2“.</translation>
    </message>
    <message>
        <source>The icons of “%1” have just changed. Look again, and repeat it.</source>
        <translation>Die Symbole von „%1“ haben sich gerade geändert. Sieh noch einmal hin und wiederhole es.</translation>
    </message>
    <message>
        <source>another Tavrik</source>
        <translation>ein anderes Tavrik</translation>
    </message>
    <message>
        <source>Nothing was changed, because %1 is using Tavrik&apos;s files at the moment. Wait until it is done, or quit it, and try again.</source>
        <translation>Nichts wurde geändert, weil %1 gerade die Dateien von Tavrik verwendet. Warte, bis es fertig ist, oder beende es und versuche es noch einmal.</translation>
    </message>
    <message>
        <source>Nothing was changed, because %1 cannot be used: %2.</source>
        <translation>Nichts wurde geändert, weil %1 nicht zu gebrauchen ist: %2.</translation>
    </message>
    <message>
        <source>Nothing was changed, because %1 is not a folder of its own. Put a real folder in its place; a link is not followed.</source>
        <translation>Nichts wurde geändert, weil %1 kein eigener Ordner ist. Setze einen echten Ordner an seine Stelle; einem Link wird nicht gefolgt.</translation>
    </message>
    <message>
        <source>Nothing was changed, because %1 was moved away. Try again.</source>
        <translation>Nichts wurde geändert, weil %1 bewegt wurde. Versuche es noch einmal.</translation>
    </message>
    <message>
        <source>Nothing was changed, because %1 is not a plain file. Remove it and try again.</source>
        <translation>Nichts wurde geändert, weil %1 keine einfache Datei ist. Entferne sie und versuche es noch einmal.</translation>
    </message>
    <message>
        <source>Nothing was changed, because %1 cannot be locked: %2.</source>
        <translation>Nichts wurde geändert, weil %1 nicht gesperrt werden kann: %2.</translation>
    </message>
    <message>
        <source>The icon for “%1” could not be saved. Look whether the disk is full, and try again.</source>
        <translation>Das Symbol für „%1“ konnte nicht gesichert werden. Sieh nach, ob das Volume voll ist, und versuche es noch einmal.</translation>
    </message>
    <message>
        <source>The picture for “%1” could not be made into an icon. Try another one.</source>
        <translation>Das Bild für „%1“ ließ sich nicht zu einem Symbol machen. Versuche es mit einem anderen.</translation>
    </message>
    <message>
        <source>%1 is an iOS app: the system draws its icon from inside the bundle, and a wrapper cannot change that. Applications made for the Mac can be restyled.</source>
        <translation>%1 ist eine iOS-App: Das System zeichnet ihr Symbol aus dem Inneren des Bundles, und das kann ein Wrapper nicht ändern. Programme für den Mac lassen sich umgestalten.</translation>
    </message>
    <message>
        <source>%1 (%2) does not work through a wrapper, so it is not restyled. Other applications are.</source>
        <translation>%1 (%2) funktioniert nicht über einen Wrapper und wird deshalb nicht umgestaltet. Andere Programme schon.</translation>
    </message>
    <message>
        <source>%1 lies at %2, outside the standard places. Move it to /Applications or ~/Applications, and it can be restyled.</source>
        <translation>%1 liegt in %2, außerhalb der üblichen Orte. Bewege die App nach /Applications oder ~/Applications, dann lässt sie sich umgestalten.</translation>
    </message>
    <message>
        <source>There is no folder at %1.</source>
        <translation>In %1 ist kein Ordner.</translation>
    </message>
    <message>
        <source>%1 cannot be read: you have no right to.</source>
        <translation>%1 kann nicht gelesen werden: Du hast kein Recht dazu.</translation>
    </message>
    <message>
        <source>There are no pictures in %1; folders in it are not looked into.</source>
        <translation>In %1 sind keine Bilder; in Ordner darin wird nicht hineingesehen.</translation>
    </message>
    <message>
        <source>The theme “%1” is to be deleted when the changes are applied, so its icons are not used.</source>
        <translation>Das Thema „%1“ wird beim Anwenden der Änderungen gelöscht; seine Symbole werden deshalb nicht verwendet.</translation>
    </message>
    <message>
        <source>The theme&apos;s icon for “%1” cannot be read: %2.</source>
        <translation>Das Symbol des Themas für „%1“ kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>Failed to install theme</source>
        <translation>Das Thema konnte nicht installiert werden</translation>
    </message>
    <message>
        <source>Failed to install theme: %1</source>
        <translation>Das Thema konnte nicht installiert werden: %1</translation>
    </message>
    <message>
        <source>Invalid theme format</source>
        <translation>Ungültiges Format eines Themas</translation>
    </message>
    <message>
        <source>Invalid theme format: %1</source>
        <translation>Ungültiges Format eines Themas: %1</translation>
    </message>
    <message>
        <source>Theme is missing required files</source>
        <translation>Dem Thema fehlen nötige Dateien</translation>
    </message>
    <message>
        <source>Theme is missing required files: %1</source>
        <translation>Dem Thema fehlen nötige Dateien: %1</translation>
    </message>
    <message>
        <source>Theme name contains invalid characters</source>
        <translation>Der Name des Themas enthält ungültige Zeichen</translation>
    </message>
    <message>
        <source>Theme name contains invalid characters: %1</source>
        <translation>Der Name des Themas enthält ungültige Zeichen: %1</translation>
    </message>
    <message>
        <source>A theme with this name already exists</source>
        <translation>Ein Thema mit diesem Namen gibt es schon</translation>
    </message>
    <message>
        <source>A theme with this name already exists: %1</source>
        <translation>Ein Thema mit diesem Namen gibt es schon: %1</translation>
    </message>
    <message>
        <source>its record lacks its id, its name or its date</source>
        <translation>seinem Eintrag fehlen Kennung, Name oder Datum</translation>
    </message>
    <message>
        <source>its id is not one of a theme</source>
        <translation>seine Kennung ist nicht die eines Themas</translation>
    </message>
    <message>
        <source>its date is none</source>
        <translation>sein Datum ist keines</translation>
    </message>
    <message>
        <source>its record is that of %1</source>
        <translation>sein Eintrag ist der von %1</translation>
    </message>
    <message>
        <source>%1 is no icon</source>
        <translation>%1 ist kein Symbol</translation>
    </message>
    <message>
        <source>%1 is too large</source>
        <translation>%1 ist zu groß</translation>
    </message>
    <message>
        <source>“%1” is not in the library</source>
        <translation>„%1“ ist nicht in der Bibliothek</translation>
    </message>
    <message>
        <source>“%1” holds more than %2</source>
        <translation>„%1“ enthält mehr als %2</translation>
    </message>
    <message>
        <source>%1 differs from another one by case or accents alone</source>
        <translation>%1 unterscheidet sich von einem anderen nur durch Groß- und Kleinschreibung oder Akzente</translation>
    </message>
    <message>
        <source>%1 cannot be in a theme file</source>
        <translation>%1 kann nicht in einer Themendatei stehen</translation>
    </message>
    <message>
        <source>“%1” is larger than %2</source>
        <translation>„%1“ ist größer als %2</translation>
    </message>
    <message>
        <source>“%1” is larger than %2 MB</source>
        <translation>„%1“ ist größer als %2 MB</translation>
    </message>
    <message>
        <source>holds more than %1 icons</source>
        <translation>enthält mehr als %1 Symbole</translation>
    </message>
    <message>
        <source>holds more than %1</source>
        <translation>enthält mehr als %1</translation>
    </message>
    <message>
        <source>holds too many large pictures</source>
        <translation>enthält zu viele große Bilder</translation>
    </message>
    <message>
        <source>“%1” has no %2</source>
        <translation>„%1“ hat kein %2</translation>
    </message>
    <message>
        <source>is larger than %1</source>
        <translation>ist größer als %1</translation>
    </message>
    <message>
        <source>holds a file with the name %1, which is not safe</source>
        <translation>enthält eine Datei mit dem unsicheren Namen %1</translation>
    </message>
    <message>
        <source>holds two files that a Mac takes for one, called %1</source>
        <translation>enthält zwei Dateien namens %1, die für einen Mac dieselbe sind</translation>
    </message>
    <message>
        <source>has a damaged manifest</source>
        <translation>hat ein beschädigtes Verzeichnis</translation>
    </message>
    <message>
        <source>holds %1, which does not belong in a theme</source>
        <translation>enthält %1, was nicht in ein Thema gehört</translation>
    </message>
    <message>
        <source>holds %1, which its manifest does not list</source>
        <translation>enthält %1, was nicht in seinem Verzeichnis steht</translation>
    </message>
    <message>
        <source>holds %1 in another size than its manifest says</source>
        <translation>enthält %1 in anderer Größe, als sein Verzeichnis sagt</translation>
    </message>
    <message>
        <source>holds %1, which is larger than %2</source>
        <translation>enthält %1, was größer ist als %2</translation>
    </message>
    <message>
        <source>holds %1, which %2</source>
        <translation>enthält %1, das %2</translation>
    </message>
    <message>
        <source>holds %1, which is not the one that its manifest lists</source>
        <translation>enthält %1, das nicht das aus seinem Verzeichnis ist</translation>
    </message>
    <message>
        <source>holds a picture that is not taken in: %1</source>
        <translation>enthält ein Bild, das nicht übernommen wird: %1</translation>
    </message>
    <message>
        <source>%1 is no plain file</source>
        <translation>%1 ist keine einfache Datei</translation>
    </message>
    <message>
        <source>the picture could not be made into an icon</source>
        <translation>das Bild ließ sich nicht zu einem Symbol machen</translation>
    </message>
    <message>
        <source>“%1” is no %2 picture</source>
        <translation>„%1“ ist kein Bild der Art %2</translation>
    </message>
    <message>
        <source>“%1” is %2 by %3 pixels; %4 a side is the most that is taken in</source>
        <translation>„%1“ hat %2 mal %3 Pixel; mehr als %4 je Seite werden nicht übernommen</translation>
    </message>
    <message>
        <source>“%1” cannot name an icon</source>
        <translation>„%1“ kann kein Symbol benennen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot name a folder</source>
        <translation>„%1“ kann keinen Ordner benennen</translation>
    </message>
    <message>
        <source>“%1” is no theme</source>
        <translation>„%1“ ist kein Thema</translation>
    </message>
    <message>
        <source>The theme has no icon “%1”</source>
        <translation>Das Thema hat kein Symbol „%1“</translation>
    </message>
    <message>
        <source>The theme has an icon for “%1” already</source>
        <translation>Das Thema hat schon ein Symbol für „%1“</translation>
    </message>
    <message>
        <source>“%1” is no icon of a theme</source>
        <translation>„%1“ ist kein Symbol eines Themas</translation>
    </message>
    <message>
        <source>%1 is a folder</source>
        <translation>%1 ist ein Ordner</translation>
    </message>
    <message>
        <source>has the format %1 of a newer version of Tavrik. Update Tavrik to open it</source>
        <translation>hat das Format %1 einer neueren Version von Tavrik. Aktualisiere Tavrik, um es zu öffnen</translation>
    </message>
    <message>
        <source>is damaged</source>
        <translation>ist beschädigt</translation>
    </message>
    <message>
        <source>is no zip archive</source>
        <translation>ist kein Zip-Archiv</translation>
    </message>
    <message>
        <source>is cut short</source>
        <translation>ist abgeschnitten</translation>
    </message>
    <message>
        <source>is cut short, or has something behind its end</source>
        <translation>ist abgeschnitten oder hat etwas hinter seinem Ende</translation>
    </message>
    <message>
        <source>is encrypted</source>
        <translation>ist verschlüsselt</translation>
    </message>
    <message>
        <source>is compressed in a way that cannot be read</source>
        <translation>ist auf eine Weise komprimiert, die nicht gelesen werden kann</translation>
    </message>
    <message>
        <source>holds a link, or something else that is no file</source>
        <translation>enthält einen Link oder etwas anderes, das keine Datei ist</translation>
    </message>
    <message>
        <source>holds more than %1 files</source>
        <translation>enthält mehr als %1 Dateien</translation>
    </message>
    <message>
        <source>is too large for the memory there is</source>
        <translation>ist zu groß für den vorhandenen Speicher</translation>
    </message>
    <message>
        <source>the file holds no dictionary</source>
        <translation>die Datei enthält kein Verzeichnis von Werten</translation>
    </message>
    <message>
        <source>Worth knowing</source>
        <translation>Wissenswert</translation>
    </message>
    <message>
        <source>Launchpad, the Dock and the settings</source>
        <translation>Launchpad, Dock und Einstellungen</translation>
    </message>
    <message>
        <source>Restyled applications</source>
        <translation>Umgestaltete Programme</translation>
    </message>
    <message>
        <source>Names</source>
        <translation>Namen</translation>
    </message>
    <message>
        <source>Unfinished work</source>
        <translation>Unfertiges</translation>
    </message>
    <message>
        <source>Icons and applications</source>
        <translation>Symbole und Programme</translation>
    </message>
    <message>
        <source>Backups and folders</source>
        <translation>Backups und Ordner</translation>
    </message>
    <message>
        <source>Icons moved or deleted</source>
        <translation>Bewegte oder gelöschte Symbole</translation>
    </message>
    <message>
        <source>Icons in use</source>
        <translation>Verwendete Symbole</translation>
    </message>
    <message>
        <source>Wrappers</source>
        <translation>Wrapper</translation>
    </message>
    <message>
        <source>Rows of wrappers that hold no place in Launchpad</source>
        <translation>Zeilen von Wrappern ohne Platz in Launchpad</translation>
    </message>
    <message>
        <source>Shown in Launchpad</source>
        <translation>In Launchpad gezeigt</translation>
    </message>
    <message>
        <source>Places in Launchpad</source>
        <translation>Plätze in Launchpad</translation>
    </message>
    <message>
        <source>Titles in Launchpad</source>
        <translation>Titel in Launchpad</translation>
    </message>
    <message>
        <source>Titles of folders</source>
        <translation>Titel von Ordnern</translation>
    </message>
    <message>
        <source>Tiles of the Dock</source>
        <translation>Kacheln im Dock</translation>
    </message>
    <message>
        <source>Labels in the Dock</source>
        <translation>Etiketten im Dock</translation>
    </message>
    <message>
        <source>Hidden icons of themes</source>
        <translation>Ausgeblendete Symbole von Themen</translation>
    </message>
    <message>
        <source>Icons of themes</source>
        <translation>Symbole von Themen</translation>
    </message>
    <message>
        <source>Themes</source>
        <translation>Themen</translation>
    </message>
    <message>
        <source>Getting ready...</source>
        <translation>Gleich geht es los …</translation>
    </message>
    <message>
        <source>Applying Font...</source>
        <translation>Schrift wird angewendet …</translation>
    </message>
    <message>
        <source>Restarting Dock...</source>
        <translation>Dock startet neu …</translation>
    </message>
    <message>
        <source>All Items</source>
        <translation>Alle Objekte</translation>
    </message>
    <message>
        <source>Themed Items</source>
        <translation>Umgestaltete Objekte</translation>
    </message>
    <message>
        <source>Unthemed Items</source>
        <translation>Nicht umgestaltete Objekte</translation>
    </message>
    <message>
        <source>You have unsaved changes</source>
        <translation>Du hast ungesicherte Änderungen</translation>
    </message>
    <message>
        <source>Do you want to abandon your changes or return to the app?</source>
        <translation>Möchtest du deine Änderungen aufgeben oder zur App zurückkehren?</translation>
    </message>
    <message>
        <source>Recovered unsaved changes</source>
        <translation>Ungesicherte Änderungen gefunden</translation>
    </message>
    <message>
        <source>Your previous session had unsaved changes. Do you want to recover them?</source>
        <translation>Von deiner letzten Sitzung gibt es ungesicherte Änderungen. Möchtest du sie wiederherstellen?</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Abandon</source>
        <translation>Aufgeben</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>An app you previously themed, %1, has been deleted.

Would you like to clean up left over theme data?</source>
        <translation>Eine App, die du umgestaltet hast, %1, wurde gelöscht.

Möchtest du übrig gebliebene Daten aufräumen?</translation>
    </message>
    <message>
        <source>The following apps you previously themed have been deleted:

 %1

Would you like to clean up left over theme data?</source>
        <translation>Diese Apps, die du umgestaltet hast, wurden gelöscht:

 %1

Möchtest du übrig gebliebene Daten aufräumen?</translation>
    </message>
    <message>
        <source>Clean Up</source>
        <translation>Aufräumen</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Nicht jetzt</translation>
    </message>
    <message>
        <source>Possible Layout Issue Detected</source>
        <translation>Mögliches Problem mit der Anordnung gefunden</translation>
    </message>
    <message>
        <source>Significant changes to your Launchpad layout have been detected. This might indicate a database issue.</source>
        <translation>Die Anordnung in Launchpad hat sich erheblich geändert. Das kann auf ein Problem mit der Datenbank hinweisen.</translation>
    </message>
    <message>
        <source>Browse Backups</source>
        <translation>Backups ansehen</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorieren</translation>
    </message>
    <message>
        <source>Close Apps</source>
        <translation>Apps schließen</translation>
    </message>
    <message>
        <source>In order to proceed, the following apps must be closed:

%1</source>
        <translation>Um fortzufahren, müssen diese Apps geschlossen werden:

%1</translation>
    </message>
    <message>
        <source>Close All</source>
        <translation>Alle schließen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Unable to close apps</source>
        <translation>Apps können nicht geschlossen werden</translation>
    </message>
    <message>
        <source>The following apps could not be closed:

• %1

Please close them manually and try again.</source>
        <translation>Diese Apps konnten nicht geschlossen werden:

• %1

Bitte schließe sie selbst und versuche es noch einmal.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Tavrik cannot start</source>
        <translation>Tavrik kann nicht starten</translation>
    </message>
    <message>
        <source>Unsupported macOS Version</source>
        <translation>Nicht unterstützte macOS-Version</translation>
    </message>
    <message>
        <source>Unfortunately your current macOS version (%1) is not supported by Tavrik.

Please return on macOS 15 Seqouia or earlier to continue.</source>
        <translation>Leider wird deine macOS-Version (%1) von Tavrik nicht unterstützt.

Bitte kehre zu macOS 15 Sequoia oder älter zurück, um fortzufahren.</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Working the magic...</source>
        <translation>Es wird gezaubert …</translation>
    </message>
    <message>
        <source>Casting spells...</source>
        <translation>Zaubersprüche wirken …</translation>
    </message>
    <message>
        <source>Conjuring icons...</source>
        <translation>Symbole werden beschworen …</translation>
    </message>
    <message>
        <source>Brewing changes...</source>
        <translation>Änderungen werden gebraut …</translation>
    </message>
    <message>
        <source>Sprinkling magic dust...</source>
        <translation>Zauberstaub wird gestreut …</translation>
    </message>
    <message>
        <source>Waving magic wand...</source>
        <translation>Der Zauberstab wird geschwungen …</translation>
    </message>
    <message>
        <source>%1 leads to where the application is no longer: it was moved to %2.</source>
        <translation>%1 führt dorthin, wo die App nicht mehr ist: Sie wurde nach %2 bewegt.</translation>
    </message>
    <message>
        <source>%1 leads to another application.</source>
        <translation>%1 führt zu einer anderen App.</translation>
    </message>
    <message>
        <source>%1 does not lead to all that is in the application&apos;s bundle.</source>
        <translation>%1 führt nicht zu allem, was im Bundle der App ist.</translation>
    </message>
    <message>
        <source>%1 holds files of its own, which no wrapper does: an update may have been put there.</source>
        <translation>%1 enthält eigene Dateien, was kein Wrapper tut: Vielleicht wurde ein Update dort abgelegt.</translation>
    </message>
    <message>
        <source>The wrapper of %1</source>
        <translation>Der Wrapper von %1</translation>
    </message>
    <message>
        <source>That cannot be the name of a backup.</source>
        <translation>So kann ein Backup nicht heißen.</translation>
    </message>
    <message>
        <source>There is no %1 at %2.</source>
        <translation>%1 gibt es nicht in %2.</translation>
    </message>
    <message>
        <source>See that the folder can be read.</source>
        <translation>Sieh nach, ob der Ordner lesbar ist.</translation>
    </message>
    <message>
        <source>An app you previously themed, %1, has been deleted.</source>
        <translation>Eine App, die du umgestaltet hast, %1, wurde gelöscht.</translation>
    </message>
    <message>
        <source>The network is switched off for Tavrik. You can switch it on in Settings, under Updates.</source>
        <translation>Das Netz ist für Tavrik ausgeschaltet. In den Einstellungen unter „Updates“ lässt es sich einschalten.</translation>
    </message>
    <message>
        <source>The address to ask is set to one that is not secure. Remove it from Tavrik&apos;s preferences, or set one that begins with https.</source>
        <translation>Die eingestellte Adresse ist nicht sicher. Entferne sie aus den Voreinstellungen von Tavrik oder setze eine, die mit https beginnt.</translation>
    </message>
    <message>
        <source>Tavrik could not reach its server. Check that this Mac is online, then try again.</source>
        <translation>Tavrik konnte seinen Server nicht erreichen. Prüfe, ob dieser Mac online ist, und versuche es noch einmal.</translation>
    </message>
    <message>
        <source>The server could not prove who it is, so Tavrik asked it nothing. Check the date of this Mac, or try again in another network.</source>
        <translation>Der Server konnte sich nicht ausweisen; Tavrik hat ihn deshalb nichts gefragt. Prüfe das Datum dieses Mac oder versuche es in einem anderen Netz noch einmal.</translation>
    </message>
    <message>
        <source>The server took too long to answer. Try again later.</source>
        <translation>Der Server hat zu lange für seine Antwort gebraucht. Versuche es später noch einmal.</translation>
    </message>
    <message>
        <source>The server answered that it cannot help right now. Try again later.</source>
        <translation>Der Server kann laut seiner Antwort gerade nicht helfen. Versuche es später noch einmal.</translation>
    </message>
    <message>
        <source>The answer was larger than it could honestly be, so Tavrik did not read it. Try again in another network.</source>
        <translation>Die Antwort war größer, als sie redlicherweise sein kann; Tavrik hat sie deshalb nicht gelesen. Versuche es in einem anderen Netz noch einmal.</translation>
    </message>
    <message>
        <source>The answer did not come from Tavrik&apos;s makers, or is an old one, so it was not used. Try again in another network.</source>
        <translation>Die Antwort stammt nicht von den Machern von Tavrik oder ist veraltet; sie wurde deshalb nicht verwendet. Versuche es in einem anderen Netz noch einmal.</translation>
    </message>
    <message>
        <source>The answer is out of date, so it was not used. Check the date of this Mac, or try again later.</source>
        <translation>Die Antwort ist abgelaufen; sie wurde deshalb nicht verwendet. Prüfe das Datum dieses Mac oder versuche es später noch einmal.</translation>
    </message>
    <message>
        <source>This version of Tavrik does not understand the answer. Look for a newer one on Tavrik&apos;s website.</source>
        <translation>Diese Version von Tavrik versteht die Antwort nicht. Suche auf der Website von Tavrik nach einer neueren.</translation>
    </message>
    <message>
        <source>Welcome to Tavrik</source>
        <translation>Willkommen bei Tavrik</translation>
    </message>
    <message>
        <source>Restyles Launchpad and the Dock, and never touches an app.</source>
        <translation>Gibt Launchpad und Dock ein neues Aussehen und fasst dabei keine App an.</translation>
    </message>
    <message>
        <source>Tavrik %1 is the newest version.</source>
        <translation>Tavrik %1 ist die neueste Version.</translation>
    </message>
    <message>
        <source>Tavrik installs nothing by itself: it opens the page in your browser.</source>
        <translation>Tavrik installiert nichts von selbst: Es öffnet die Seite in deinem Browser.</translation>
    </message>
    <message>
        <source>Switch Tavrik on in System Preferences &gt; Security &amp; Privacy &gt; Privacy &gt; Full Disk Access and open it again: macOS keeps it from %1.</source>
        <translation>Schalte Tavrik unter Systemeinstellungen &gt; Sicherheit &amp; Datenschutz &gt; Datenschutz &gt; Festplattenvollzugriff ein und öffne es neu: macOS verwehrt ihm %1.</translation>
    </message>
    <message>
        <source>Switch Tavrik on in System Settings &gt; Privacy &amp; Security &gt; App Management and open it again: macOS keeps it from %1.</source>
        <translation>Schalte Tavrik unter Systemeinstellungen &gt; Datenschutz &amp; Sicherheit &gt; App-Verwaltung ein und öffne es neu: macOS verwehrt ihm %1.</translation>
    </message>
    <message>
        <source>Switch Tavrik on in System Settings &gt; Privacy &amp; Security &gt; Full Disk Access and open it again: macOS keeps it from %1.</source>
        <translation>Schalte Tavrik unter Systemeinstellungen &gt; Datenschutz &amp; Sicherheit &gt; Festplattenvollzugriff ein und öffne es neu: macOS verwehrt ihm %1.</translation>
    </message>
    <message>
        <source>Use a PNG, JPEG, HEIC, TIFF, WebP, GIF, BMP, JPEG 2000, SVG, ICO or ICNS picture.</source>
        <translation>Verwende ein Bild als PNG, JPEG, HEIC, TIFF, WebP, GIF, BMP, JPEG 2000, SVG, ICO oder ICNS.</translation>
    </message>
</context>
<context>
    <name>CreateThemeSheet</name>
    <message>
        <source>Create New Theme</source>
        <translation>Neues Thema erstellen</translation>
    </message>
    <message>
        <source>Theme name</source>
        <translation>Name des Themas</translation>
    </message>
    <message>
        <source>Move active icons into theme</source>
        <translation>Aktive Symbole in das Thema bewegen</translation>
    </message>
    <message>
        <source>All active icons will be moved into the theme upon creation.</source>
        <translation>Alle aktiven Symbole werden beim Erstellen in das Thema bewegt.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Creating…</source>
        <translation>Wird erstellt …</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Erstellen</translation>
    </message>
</context>
<context>
    <name>Differences</name>
    <message numerus="yes">
        <source>%n app(s) moved</source>
        <translation>
            <numerusform>%n App hat sich bewegt</numerusform>
            <numerusform>%n Apps haben sich bewegt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n new in Launchpad</source>
        <translation>
            <numerusform>%n neu in Launchpad</numerusform>
            <numerusform>%n neu in Launchpad</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n gone from Launchpad</source>
        <translation>
            <numerusform>%n nicht mehr in Launchpad</numerusform>
            <numerusform>%n nicht mehr in Launchpad</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n new in the Dock</source>
        <translation>
            <numerusform>%n neu im Dock</numerusform>
            <numerusform>%n neu im Dock</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n gone from the Dock</source>
        <translation>
            <numerusform>%n nicht mehr im Dock</numerusform>
            <numerusform>%n nicht mehr im Dock</numerusform>
        </translation>
    </message>
    <message>
        <source>the Dock in another order</source>
        <translation>das Dock in anderer Reihenfolge</translation>
    </message>
    <message>
        <source>New in Launchpad: %1.</source>
        <translation>Neu in Launchpad: %1.</translation>
    </message>
    <message>
        <source>Gone from Launchpad: %1.</source>
        <translation>Nicht mehr in Launchpad: %1.</translation>
    </message>
    <message>
        <source>%1 moved from %2 to %3.</source>
        <translation>%1 ist von %2 nach %3 gewandert.</translation>
    </message>
    <message>
        <source>New in the Dock: %1.</source>
        <translation>Neu im Dock: %1.</translation>
    </message>
    <message>
        <source>Gone from the Dock: %1.</source>
        <translation>Nicht mehr im Dock: %1.</translation>
    </message>
    <message>
        <source>The tiles of the Dock stand in another order.</source>
        <translation>Die Kacheln im Dock stehen in anderer Reihenfolge.</translation>
    </message>
</context>
<context>
    <name>DockBar</name>
    <message>
        <source>Dock</source>
        <translation>Dock</translation>
    </message>
    <message>
        <source>New icon</source>
        <translation>Neues Symbol</translation>
    </message>
</context>
<context>
    <name>FactList</name>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
</context>
<context>
    <name>FilterPopover</name>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Dock Items</source>
        <translation>Apps im Dock</translation>
    </message>
    <message>
        <source>Non-squircle icons</source>
        <translation>Symbole ohne Standardform</translation>
    </message>
    <message>
        <source>Show Unsupported Apps</source>
        <translation>Nicht unterstützte Apps zeigen</translation>
    </message>
</context>
<context>
    <name>FolderImportRow</name>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>FolderImportSheet</name>
    <message>
        <source>Import a Folder of Pictures</source>
        <translation>Einen Ordner mit Bildern importieren</translation>
    </message>
    <message numerus="yes">
        <source>Pictures for %n app(s) in “%1”</source>
        <translation>
            <numerusform>Bilder für %n App in „%1“</numerusform>
            <numerusform>Bilder für %n Apps in „%1“</numerusform>
        </translation>
    </message>
    <message>
        <source>Looking for pictures in “%1”…</source>
        <translation>In „%1“ werden Bilder gesucht …</translation>
    </message>
    <message>
        <source>Theme name:</source>
        <translation>Name des Themas:</translation>
    </message>
    <message>
        <source>Theme name</source>
        <translation>Name des Themas</translation>
    </message>
    <message>
        <source>Take guesses (%1)</source>
        <translation>Vermutungen übernehmen (%1)</translation>
    </message>
    <message>
        <source>Matches</source>
        <translation>Treffer</translation>
    </message>
    <message>
        <source>None of the pictures is named after an app.</source>
        <translation>Keines der Bilder ist nach einer App benannt.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Importing…</source>
        <translation>Wird importiert …</translation>
    </message>
    <message>
        <source>Import (%1)</source>
        <translation>Importieren (%1)</translation>
    </message>
</context>
<context>
    <name>FontsHeader</name>
    <message>
        <source>Take Back</source>
        <translation>Zurücknehmen</translation>
    </message>
    <message>
        <source>Leaves your names as they are</source>
        <translation>Lässt deine Namen, wie sie sind</translation>
    </message>
    <message>
        <source>Reset to Plain Names</source>
        <translation>Schlichte Namen wiederherstellen</translation>
    </message>
    <message>
        <source>All names return to plain letters when you apply</source>
        <translation>Alle Namen kehren beim Anwenden zu schlichten Buchstaben zurück</translation>
    </message>
    <message>
        <source>Text to try</source>
        <translation>Text zum Ausprobieren</translation>
    </message>
    <message>
        <source>Type a text to see it in every style</source>
        <translation>Text eingeben, um ihn in jedem Stil zu sehen</translation>
    </message>
    <message>
        <source>Screen readers may spell out styled letters or skip them.</source>
        <translation>Bildschirmleser buchstabieren gestaltete Buchstaben oder lassen sie aus.</translation>
    </message>
</context>
<context>
    <name>FontsPage</name>
    <message>
        <source>%1 …</source>
        <translation>%1 …</translation>
    </message>
</context>
<context>
    <name>FontsView</name>
    <message>
        <source>Styles</source>
        <translation>Stile</translation>
    </message>
</context>
<context>
    <name>HealthTab</name>
    <message>
        <source>Check Now</source>
        <translation>Jetzt prüfen</translation>
    </message>
    <message>
        <source>Mend…</source>
        <translation>Reparieren …</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Befunde</translation>
    </message>
    <message>
        <source>Is everything as it should be?</source>
        <translation>Ist alles, wie es sein soll?</translation>
    </message>
    <message>
        <source>Launchpad, the Dock, restyled apps, icons and backups were looked at.</source>
        <translation>Launchpad, Dock, umgestaltete Apps, Symbole und Backups wurden angesehen.</translation>
    </message>
    <message>
        <source>Looks at Launchpad, the Dock, restyled apps, names, icons and backups. Checking changes nothing.</source>
        <translation>Sieht Launchpad, Dock, umgestaltete Apps, Namen, Symbole und Backups an. Das Prüfen ändert nichts.</translation>
    </message>
    <message>
        <source>Check Again</source>
        <translation>Noch einmal prüfen</translation>
    </message>
    <message>
        <source>Mend what was found?</source>
        <translation>Reparieren, was gefunden wurde?</translation>
    </message>
    <message>
        <source>A backup is taken before Launchpad or the Dock is changed. This is what is done:</source>
        <translation>Bevor sich an Launchpad oder Dock etwas ändert, wird ein Backup angelegt. Das wird getan:</translation>
    </message>
    <message>
        <source>Mend</source>
        <translation>Reparieren</translation>
    </message>
</context>
<context>
    <name>IconShapeRow</name>
    <message>
        <source>%1, icon %2</source>
        <translation>%1, Symbol %2</translation>
    </message>
    <message>
        <source>Icon %1, the one in use</source>
        <translation>Symbol %1, das verwendete</translation>
    </message>
    <message>
        <source>Icon %1</source>
        <translation>Symbol %1</translation>
    </message>
    <message>
        <source>Cut to shape</source>
        <translation>Auf Form schneiden</translation>
    </message>
</context>
<context>
    <name>IconStripView</name>
    <message>
        <source>The application&apos;s own icon</source>
        <translation>Das eigene Symbol der App</translation>
    </message>
    <message>
        <source>Add pictures…</source>
        <translation>Bilder hinzufügen …</translation>
    </message>
    <message>
        <source>Icon of the theme “%1”</source>
        <translation>Symbol des Themas „%1“</translation>
    </message>
    <message>
        <source>Icon %1, not applied yet</source>
        <translation>Symbol %1, noch nicht angewendet</translation>
    </message>
    <message>
        <source>Icon %1</source>
        <translation>Symbol %1</translation>
    </message>
    <message>
        <source>Icons</source>
        <translation>Symbole</translation>
    </message>
</context>
<context>
    <name>IconTile</name>
    <message>
        <source>Hide this icon</source>
        <translation>Dieses Symbol ausblenden</translation>
    </message>
    <message>
        <source>Remove this icon</source>
        <translation>Dieses Symbol entfernen</translation>
    </message>
</context>
<context>
    <name>IconsTab</name>
    <message>
        <source>Cut icons to the shape of a Mac</source>
        <translation>Symbole auf die Form des Mac schneiden</translation>
    </message>
    <message>
        <source>For square pictures among your icons. Your files stay as they are; a change shows when the icon is next applied, or after Refresh Launchpad and Dock.</source>
        <translation>Für quadratische Bilder unter deinen Symbolen. Deine Dateien bleiben, wie sie sind; eine Änderung zeigt sich, wenn das Symbol das nächste Mal angewendet wird, oder nach „Launchpad und Dock auffrischen“.</translation>
    </message>
    <message>
        <source>Icons</source>
        <translation>Symbole</translation>
    </message>
    <message>
        <source>No icons of your own yet</source>
        <translation>Noch keine eigenen Symbole</translation>
    </message>
    <message>
        <source>Give an app another icon and apply it. Then you can choose here whether it is cut to shape.</source>
        <translation>Gib einer App ein anderes Symbol und wende es an. Dann kannst du hier wählen, ob es auf Form geschnitten wird.</translation>
    </message>
</context>
<context>
    <name>KeepStepper</name>
    <message>
        <source>Keep the newest %1</source>
        <translation>Die letzten %1</translation>
    </message>
    <message>
        <source>Keep fewer backups</source>
        <translation>Weniger Backups behalten</translation>
    </message>
    <message>
        <source>Keep more backups</source>
        <translation>Mehr Backups behalten</translation>
    </message>
</context>
<context>
    <name>LayoutDrawing</name>
    <message>
        <source>Page %1</source>
        <translation>Seite %1</translation>
    </message>
</context>
<context>
    <name>LeaveTab</name>
    <message>
        <source>Everything is taken back</source>
        <translation>Alles ist zurückgenommen</translation>
    </message>
    <message>
        <source>Something is left</source>
        <translation>Etwas ist noch da</translation>
    </message>
    <message>
        <source>There is nothing to take back</source>
        <translation>Es gibt nichts zurückzunehmen</translation>
    </message>
    <message>
        <source>Take everything back</source>
        <translation>Alles zurücknehmen</translation>
    </message>
    <message>
        <source>Launchpad and the Dock were read back: nothing of Tavrik’s is left in them.</source>
        <translation>Launchpad und Dock wurden noch einmal gelesen: Nichts von Tavrik ist mehr darin.</translation>
    </message>
    <message>
        <source>Try once more. Should that not help, the backup puts Launchpad and the Dock back.</source>
        <translation>Versuche es noch einmal. Sollte das nicht helfen, setzt das Backup Launchpad und Dock zurück.</translation>
    </message>
    <message>
        <source>Launchpad and the Dock are as they would be without Tavrik.</source>
        <translation>Launchpad und Dock sind, wie sie ohne Tavrik wären.</translation>
    </message>
    <message>
        <source>Every app gets its own icon, name and place back. Your icons, themes and backups stay.</source>
        <translation>Jede App bekommt ihr eigenes Symbol, ihren Namen und ihren Platz zurück. Deine Symbole, Themen und Backups bleiben.</translation>
    </message>
    <message>
        <source>Try Once More…</source>
        <translation>Noch einmal versuchen …</translation>
    </message>
    <message>
        <source>Take Everything Back…</source>
        <translation>Alles zurücknehmen …</translation>
    </message>
    <message>
        <source>What Tavrik keeps for itself</source>
        <translation>Was Tavrik für sich aufbewahrt</translation>
    </message>
    <message>
        <source>It is of no use without Tavrik, and takes %1.</source>
        <translation>Ohne Tavrik nützt es nichts und belegt %1.</translation>
    </message>
    <message>
        <source>It takes %1. It can be deleted once everything is taken back.</source>
        <translation>Es belegt %1. Es kann gelöscht werden, sobald alles zurückgenommen ist.</translation>
    </message>
    <message>
        <source>Delete It and Quit…</source>
        <translation>Löschen und beenden …</translation>
    </message>
    <message>
        <source>Take everything back?</source>
        <translation>Alles zurücknehmen?</translation>
    </message>
    <message>
        <source>A backup is taken first. Then every app gets its own look and name back in Launchpad and the Dock, the stand-ins are removed, and the Dock restarts. Icons, themes, backups and what is staged stay.</source>
        <translation>Zuerst wird ein Backup angelegt. Dann bekommt jede App in Launchpad und Dock ihr Aussehen und ihren Namen zurück, die Stellvertreter werden entfernt, und das Dock startet neu. Symbole, Themen, Backups und was vorgemerkt ist, bleiben.</translation>
    </message>
    <message>
        <source>Take Everything Back</source>
        <translation>Alles zurücknehmen</translation>
    </message>
    <message>
        <source>Delete what Tavrik keeps, %1?</source>
        <translation>Löschen, was Tavrik aufbewahrt, %1?</translation>
    </message>
    <message>
        <source>The icons of all apps, all themes, all backups with the Original State, what is staged, and the settings go for good. Nothing brings them back. Tavrik then quits.</source>
        <translation>Die Symbole aller Apps, alle Themen, alle Backups samt dem Originalzustand, was vorgemerkt ist und die Einstellungen verschwinden für immer. Nichts bringt sie zurück. Tavrik wird dann beendet.</translation>
    </message>
    <message>
        <source>Delete for Good and Quit</source>
        <translation>Für immer löschen und beenden</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Tavrik</source>
        <translation>Tavrik</translation>
    </message>
</context>
<context>
    <name>NetworkWords</name>
    <message>
        <source>macOS %1 to %2</source>
        <translation>macOS %1 bis %2</translation>
    </message>
    <message>
        <source>macOS %1 or later</source>
        <translation>macOS %1 oder neuer</translation>
    </message>
    <message>
        <source>macOS up to %1</source>
        <translation>macOS bis %1</translation>
    </message>
</context>
<context>
    <name>OneThemeBar</name>
    <message>
        <source>All Themes</source>
        <translation>Alle Themen</translation>
    </message>
    <message>
        <source>Theme name</source>
        <translation>Name des Themas</translation>
    </message>
    <message>
        <source>To be removed when you apply</source>
        <translation>Wird beim Anwenden entfernt</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportieren …</translation>
    </message>
    <message>
        <source>Done Editing</source>
        <translation>Fertig bearbeitet</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Move Theme to Bin</source>
        <translation>Thema in den Papierkorb legen</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Widerrufen</translation>
    </message>
    <message>
        <source>Applying…</source>
        <translation>Wird angewendet …</translation>
    </message>
    <message>
        <source>Apply Theme</source>
        <translation>Thema anwenden</translation>
    </message>
</context>
<context>
    <name>OneThemeFilters</name>
    <message>
        <source>Shown icons</source>
        <translation>Gezeigte Symbole</translation>
    </message>
    <message>
        <source>Search icons</source>
        <translation>Symbole suchen</translation>
    </message>
    <message>
        <source>Show file names</source>
        <translation>Dateinamen zeigen</translation>
    </message>
</context>
<context>
    <name>OneThemeView</name>
    <message>
        <source>Icons of %1</source>
        <translation>Symbole von %1</translation>
    </message>
    <message>
        <source>Nothing to Show</source>
        <translation>Nichts zu zeigen</translation>
    </message>
    <message>
        <source>No app of this theme is called “%1”.</source>
        <translation>Keine App dieses Themas heißt „%1“.</translation>
    </message>
    <message>
        <source>No app is in this group.</source>
        <translation>In dieser Gruppe ist keine App.</translation>
    </message>
    <message>
        <source>Drag and drop images here to add icons to this theme</source>
        <translation>Ziehe Bilder hierher, um dem Thema Symbole hinzuzufügen</translation>
    </message>
</context>
<context>
    <name>PageDots</name>
    <message>
        <source>Page %1</source>
        <translation>Seite %1</translation>
    </message>
</context>
<context>
    <name>PicturePicker</name>
    <message>
        <source>Choose Pictures</source>
        <translation>Bilder auswählen</translation>
    </message>
    <message>
        <source>Pictures (%1)</source>
        <translation>Bilder (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
</context>
<context>
    <name>PlanPage</name>
    <message>
        <source>Apply Changes</source>
        <translation>Änderungen anwenden</translation>
    </message>
    <message>
        <source>These apps are open and must be closed before: %1.</source>
        <translation>Diese Apps sind offen und müssen vorher geschlossen werden: %1.</translation>
    </message>
    <message>
        <source>Quit Them for Me</source>
        <translation>Für mich beenden</translation>
    </message>
    <message>
        <source>Hide Details</source>
        <translation>Einzelheiten ausblenden</translation>
    </message>
    <message>
        <source>Show Every Change</source>
        <translation>Jede Änderung zeigen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>Open Privacy Settings</source>
        <translation>Datenschutz-Einstellungen öffnen</translation>
    </message>
</context>
<context>
    <name>PreviewBar</name>
    <message>
        <source>Comparison</source>
        <translation>Vergleich</translation>
    </message>
    <message>
        <source>Divider</source>
        <translation>Trennlinie</translation>
    </message>
    <message>
        <source>Side by Side</source>
        <translation>Nebeneinander</translation>
    </message>
    <message>
        <source>Nothing is staged that would show.</source>
        <translation>Nichts ist vorgemerkt, was sich zeigen würde.</translation>
    </message>
    <message numerus="yes">
        <source>%n change(s), %1 on this page</source>
        <translation>
            <numerusform>%n Änderung, %1 auf dieser Seite</numerusform>
            <numerusform>%n Änderungen, %1 auf dieser Seite</numerusform>
        </translation>
    </message>
    <message>
        <source>Only pages with changes</source>
        <translation>Nur Seiten mit Änderungen</translation>
    </message>
</context>
<context>
    <name>PreviewComparison</name>
    <message>
        <source>Launchpad and Dock, now and after applying</source>
        <translation>Launchpad und Dock, jetzt und nach dem Anwenden</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Jetzt</translation>
    </message>
    <message>
        <source>After applying</source>
        <translation>Nach dem Anwenden</translation>
    </message>
</context>
<context>
    <name>PreviewTile</name>
    <message>
        <source>Folder %1</source>
        <translation>Ordner %1</translation>
    </message>
    <message>
        <source>New icon</source>
        <translation>Neues Symbol</translation>
    </message>
</context>
<context>
    <name>PreviewView</name>
    <message>
        <source>The preview cannot be drawn</source>
        <translation>Die Vorschau kann nicht gezeichnet werden</translation>
    </message>
    <message>
        <source>No page would change</source>
        <translation>Keine Seite würde sich ändern</translation>
    </message>
    <message>
        <source>Launchpad is empty</source>
        <translation>Launchpad ist leer</translation>
    </message>
</context>
<context>
    <name>PrivacyBar</name>
    <message>
        <source>Open Privacy Settings</source>
        <translation>Datenschutz-Einstellungen öffnen</translation>
    </message>
    <message>
        <source>Look Again</source>
        <translation>Erneut nachsehen</translation>
    </message>
</context>
<context>
    <name>ProgressSheet</name>
    <message>
        <source>Applying Changes</source>
        <translation>Änderungen werden angewendet</translation>
    </message>
    <message>
        <source>One Moment</source>
        <translation>Einen Moment</translation>
    </message>
    <message>
        <source>Don&apos;t close Tavrik!</source>
        <translation>Tavrik nicht schließen!</translation>
    </message>
    <message>
        <source>Please be patient, quitting now will cause issues!</source>
        <translation>Bitte Geduld: Jetzt zu beenden führt zu Problemen!</translation>
    </message>
</context>
<context>
    <name>ResultPage</name>
    <message>
        <source>Remarks</source>
        <translation>Anmerkungen</translation>
    </message>
    <message>
        <source>Copy Details</source>
        <translation>Einzelheiten kopieren</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
</context>
<context>
    <name>SearchField</name>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Clear the search</source>
        <translation>Suche löschen</translation>
    </message>
</context>
<context>
    <name>SettingsTabs</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Backups</source>
        <translation>Backups</translation>
    </message>
    <message>
        <source>Themes</source>
        <translation>Themen</translation>
    </message>
    <message>
        <source>Icons</source>
        <translation>Symbole</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>Verlassen</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Updates</translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
</context>
<context>
    <name>Sidebar</name>
    <message>
        <source>Places</source>
        <translation>Orte</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>Programme</translation>
    </message>
    <message>
        <source>Your Apps</source>
        <translation>Deine Apps</translation>
    </message>
    <message>
        <source>System Apps</source>
        <translation>System-Apps</translation>
    </message>
    <message>
        <source>Looks</source>
        <translation>Aussehen</translation>
    </message>
    <message>
        <source>Themes</source>
        <translation>Themen</translation>
    </message>
    <message>
        <source>Fonts</source>
        <translation>Schriften</translation>
    </message>
    <message>
        <source>New: Tavrik %1</source>
        <translation>Neu: Tavrik %1</translation>
    </message>
</context>
<context>
    <name>SidebarItem</name>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>SliderHandle</name>
    <message>
        <source>Divider between now and after</source>
        <translation>Trennlinie zwischen jetzt und nachher</translation>
    </message>
</context>
<context>
    <name>StagedBar</name>
    <message>
        <source>Everything is applied.</source>
        <translation>Alles ist angewendet.</translation>
    </message>
    <message numerus="yes">
        <source>%n change(s) staged. Your Mac stays as it is until you apply.</source>
        <translation>
            <numerusform>%n Änderung vorgemerkt. Dein Mac bleibt, wie er ist, bis du sie anwendest.</numerusform>
            <numerusform>%n Änderungen vorgemerkt. Dein Mac bleibt, wie er ist, bis du sie anwendest.</numerusform>
        </translation>
    </message>
    <message>
        <source>Apply (%1)…</source>
        <translation>Anwenden (%1) …</translation>
    </message>
    <message>
        <source>Apply…</source>
        <translation>Anwenden …</translation>
    </message>
    <message>
        <source>Shows what would change before anything does</source>
        <translation>Zeigt, was sich ändern würde, bevor etwas geschieht</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
</context>
<context>
    <name>StyleCard</name>
    <message>
        <source>In use</source>
        <translation>In Gebrauch</translation>
    </message>
    <message>
        <source>Staged</source>
        <translation>Vorgemerkt</translation>
    </message>
</context>
<context>
    <name>ThemeCardView</name>
    <message>
        <source>%1, to be removed</source>
        <translation>%1, wird entfernt</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>Leer</translation>
    </message>
    <message>
        <source>To be removed</source>
        <translation>Wird entfernt</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Widerrufen</translation>
    </message>
    <message>
        <source>Applying…</source>
        <translation>Wird angewendet …</translation>
    </message>
    <message>
        <source>Apply Theme</source>
        <translation>Thema anwenden</translation>
    </message>
</context>
<context>
    <name>ThemeFileDialogs</name>
    <message>
        <source>Import Themes</source>
        <translation>Themen importieren</translation>
    </message>
    <message>
        <source>Themes (*.tavriktheme)</source>
        <translation>Themen (*.tavriktheme)</translation>
    </message>
    <message>
        <source>Import a Folder of Pictures</source>
        <translation>Einen Ordner mit Bildern importieren</translation>
    </message>
    <message>
        <source>Export Theme</source>
        <translation>Thema exportieren</translation>
    </message>
    <message>
        <source>Replace “%1”?</source>
        <translation>„%1“ ersetzen?</translation>
    </message>
    <message>
        <source>There is a file of this name already. What is in it would be lost.</source>
        <translation>Eine Datei dieses Namens gibt es schon. Was darin ist, ginge verloren.</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
</context>
<context>
    <name>ThemeHelp</name>
    <message>
        <source>About Themes</source>
        <translation>Über Themen</translation>
    </message>
    <message>
        <source>- Theme Name: Change how this theme appears in your library

- Icons: Click any icon to hide/show it from being applied when using this theme</source>
        <translation>- Name des Themas: Ändert, wie das Thema in deiner Bibliothek heißt

- Symbole: Klicke auf ein Symbol, damit es beim Anwenden dieses Themas ausgelassen oder wieder verwendet wird</translation>
    </message>
    <message>
        <source>- Edit Mode: Rename the theme and its icon files (a file is named after its application&apos;s bundle identifier), delete icons, or move the whole theme to the Bin. Deleting happens when you apply; until then you can undo it</source>
        <translation>- Bearbeiten: Benenne das Thema und seine Symboldateien um (eine Datei heißt nach der Bundle-Kennung ihrer App), lösche Symbole oder lege das ganze Thema in den Papierkorb. Gelöscht wird beim Anwenden; bis dahin kannst du es widerrufen</translation>
    </message>
    <message>
        <source>- Drag and Drop: Drop pictures named after applications anywhere, or drop one picture on the application that it is for</source>
        <translation>- Ziehen und Ablegen: Lege Bilder, die nach Apps benannt sind, irgendwo ab, oder ein Bild auf der App, für die es ist</translation>
    </message>
</context>
<context>
    <name>ThemeIconTile</name>
    <message>
        <source>Bundle identifier that the file of %1 is named after</source>
        <translation>Bundle-Kennung, nach der die Datei von %1 benannt ist</translation>
    </message>
    <message>
        <source>Keep the Icon of %1</source>
        <translation>Das Symbol von %1 behalten</translation>
    </message>
    <message>
        <source>Delete the Icon of %1</source>
        <translation>Das Symbol von %1 löschen</translation>
    </message>
</context>
<context>
    <name>ThemeLibraryBar</name>
    <message>
        <source>Preview style</source>
        <translation>Art der Vorschau</translation>
    </message>
    <message>
        <source>Scattered</source>
        <translation>Verstreut</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Raster</translation>
    </message>
    <message>
        <source>Show file names</source>
        <translation>Dateinamen zeigen</translation>
    </message>
    <message>
        <source>Import a Folder of Pictures…</source>
        <translation>Einen Ordner mit Bildern importieren …</translation>
    </message>
    <message>
        <source>Import a Theme File…</source>
        <translation>Eine Themendatei importieren …</translation>
    </message>
    <message>
        <source>Create New Theme</source>
        <translation>Neues Thema erstellen</translation>
    </message>
</context>
<context>
    <name>ThemeLibraryView</name>
    <message>
        <source>Theme library</source>
        <translation>Themenbibliothek</translation>
    </message>
    <message>
        <source>No Themes Yet</source>
        <translation>Noch keine Themen</translation>
    </message>
    <message>
        <source>Use the + button above to create a theme and organize your icons.</source>
        <translation>Erstelle oben mit + ein Thema und ordne deine Symbole.</translation>
    </message>
    <message>
        <source>Drop theme files or a folder of pictures to import them</source>
        <translation>Lege Themendateien oder einen Ordner mit Bildern hier ab, um sie zu importieren</translation>
    </message>
</context>
<context>
    <name>ThemeOutcome</name>
    <message>
        <source>Dismiss</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>ThemesTab</name>
    <message>
        <source>How the icons of a theme are laid out in the library</source>
        <translation>Wie die Symbole eines Themas in der Bibliothek angeordnet sind</translation>
    </message>
    <message>
        <source>Scattered</source>
        <translation>Verstreut</translation>
    </message>
    <message>
        <source>In a grid</source>
        <translation>Im Raster</translation>
    </message>
    <message>
        <source>Show the file names below the icons</source>
        <translation>Dateinamen unter den Symbolen zeigen</translation>
    </message>
</context>
<context>
    <name>Toolbar</name>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Your Apps</source>
        <translation>Deine Apps</translation>
    </message>
    <message>
        <source>System Apps</source>
        <translation>System-Apps</translation>
    </message>
    <message>
        <source>Themes</source>
        <translation>Themen</translation>
    </message>
    <message>
        <source>Fonts</source>
        <translation>Schriften</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Widerrufen</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Hide the Preview</source>
        <translation>Vorschau ausblenden</translation>
    </message>
    <message>
        <source>Show the Preview</source>
        <translation>Vorschau zeigen</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
</context>
<context>
    <name>UpdateButtons</name>
    <message>
        <source>Skip This Version</source>
        <translation>Diese Version überspringen</translation>
    </message>
    <message>
        <source>Tells of it no more; the next one is told of again</source>
        <translation>Sie wird nicht mehr gemeldet; die nächste wieder</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Noch einmal versuchen</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Einstellungen …</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Später</translation>
    </message>
    <message>
        <source>Download…</source>
        <translation>Laden …</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Opens the page in your browser</source>
        <translation>Öffnet die Seite in deinem Browser</translation>
    </message>
</context>
<context>
    <name>UpdateNotes</name>
    <message>
        <source>What is new: %1</source>
        <translation>Was neu ist: %1</translation>
    </message>
</context>
<context>
    <name>UpdateSheet</name>
    <message>
        <source>Updates</source>
        <translation>Updates</translation>
    </message>
</context>
<context>
    <name>UpdatesTab</name>
    <message>
        <source>Tavrik %1</source>
        <translation>Tavrik %1</translation>
    </message>
    <message>
        <source>Show Update…</source>
        <translation>Update zeigen …</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>Jetzt prüfen</translation>
    </message>
    <message>
        <source>Look for newer versions, at most once a day</source>
        <translation>Nach neueren Versionen suchen, höchstens einmal am Tag</translation>
    </message>
    <message>
        <source>Fetch newer help texts and links, at most once a day</source>
        <translation>Neuere Hilfetexte und Links laden, höchstens einmal am Tag</translation>
    </message>
    <message>
        <source>Never use the network</source>
        <translation>Niemals das Netz verwenden</translation>
    </message>
    <message>
        <source>Overrides both switches, and “Check for Updates” in the menu.</source>
        <translation>Geht beiden Schaltern und „Nach Updates suchen“ im Menü vor.</translation>
    </message>
    <message>
        <source>What is sent</source>
        <translation>Was gesendet wird</translation>
    </message>
    <message>
        <source>A request for one file from %1: the file’s name, the hour, which answer is kept already, and a signature that is the same for every copy of Tavrik. No name, no number of this Mac, nothing about your apps, not even the version that you use. The server sees your internet address, as with every page that you open. Nothing is installed by itself.</source>
        <translation>Eine Anfrage nach einer Datei von %1: der Name der Datei, die Stunde, welche Antwort schon da ist, und eine Signatur, die für jede Kopie von Tavrik dieselbe ist. Kein Name, keine Nummer dieses Mac, nichts über deine Apps, nicht einmal deine Version. Der Server sieht deine Internetadresse, wie bei jeder Seite, die du öffnest. Nichts wird von selbst installiert.</translation>
    </message>
    <message>
        <source>Privacy…</source>
        <translation>Datenschutz …</translation>
    </message>
    <message>
        <source>Opens in your browser</source>
        <translation>Öffnet sich in deinem Browser</translation>
    </message>
    <message>
        <source>All Versions…</source>
        <translation>Alle Versionen …</translation>
    </message>
</context>
<context>
    <name>WebPage</name>
    <message>
        <source>No browser could be opened. The address is %1</source>
        <translation>Es konnte kein Browser geöffnet werden. Die Adresse ist %1</translation>
    </message>
</context>
<context>
    <name>WelcomeSheet</name>
    <message>
        <source>Welcome to Tavrik</source>
        <translation>Willkommen bei Tavrik</translation>
    </message>
    <message>
        <source>Your Launchpad and Dock, as you like them</source>
        <translation>Launchpad und Dock, wie du sie magst</translation>
    </message>
    <message>
        <source>Give apps other icons, one by one or by whole themes, and write their names in another alphabet.</source>
        <translation>Gib Apps andere Symbole, einzeln oder mit ganzen Themen, und schreibe ihre Namen in einem anderen Alphabet.</translation>
    </message>
    <message>
        <source>Your apps are never touched</source>
        <translation>Deine Apps werden nie angefasst</translation>
    </message>
    <message>
        <source>Each restyled app gets a small stand-in with its own icon. The app itself stays exactly as it is, and keeps updating.</source>
        <translation>Jede umgestaltete App bekommt einen kleinen Stellvertreter mit eigenem Symbol. Die App selbst bleibt genau, wie sie ist, und wird weiter aktualisiert.</translation>
    </message>
    <message>
        <source>Nothing changes until you apply</source>
        <translation>Nichts ändert sich, bis du es anwendest</translation>
    </message>
    <message>
        <source>What you do is collected first, and you see it before it happens. Applying makes a backup, then restarts the Dock.</source>
        <translation>Was du tust, wird erst gesammelt, und du siehst es, bevor es geschieht. Beim Anwenden wird ein Backup angelegt, dann startet das Dock neu.</translation>
    </message>
    <message>
        <source>Leave at any time</source>
        <translation>Jederzeit zurück</translation>
    </message>
    <message>
        <source>The Help menu takes everything back: every icon, every name, every place. So does any backup.</source>
        <translation>Das Menü „Hilfe“ nimmt alles zurück: jedes Symbol, jeden Namen, jeden Platz. Jedes Backup tut das auch.</translation>
    </message>
    <message>
        <source>Get Started</source>
        <translation>Los geht’s</translation>
    </message>
</context>
<context>
    <name>WhyNot</name>
    <message>
        <source>Why not?</source>
        <translation>Warum nicht?</translation>
    </message>
</context>
<context>
    <name>tavrik</name>
    <message>
        <source>“%1” is not named after one application. Drop it on the icon that it is for.</source>
        <translation>„%1“ ist nicht nach einer bestimmten App benannt. Lege es auf dem Symbol ab, für das es ist.</translation>
    </message>
</context>
<context>
    <name>tavrik::ApplicationRows</name>
    <message>
        <source>Cannot be restyled</source>
        <translation>Kann nicht umgestaltet werden</translation>
    </message>
    <message>
        <source>Not applied yet</source>
        <translation>Noch nicht angewendet</translation>
    </message>
    <message>
        <source>Custom icon</source>
        <translation>Eigenes Symbol</translation>
    </message>
    <message>
        <source>In the Dock</source>
        <translation>Im Dock</translation>
    </message>
    <message>
        <source> · </source>
        <comment>between two remarks on an application</comment>
        <translation> · </translation>
    </message>
</context>
<context>
    <name>tavrik::ApplicationsList</name>
    <message>
        <source>The picture</source>
        <translation>Das Bild</translation>
    </message>
    <message>
        <source>There is no picture on the clipboard. Copy a picture or its file, then paste it.</source>
        <translation>In der Zwischenablage ist kein Bild. Kopiere ein Bild oder seine Datei und setze es dann ein.</translation>
    </message>
    <message numerus="yes">
        <source>%n picture(s) not taken in. %1</source>
        <translation>
            <numerusform>%n Bild nicht übernommen. %1</numerusform>
            <numerusform>%n Bilder nicht übernommen. %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tavrik::ApplyModel</name>
    <message numerus="yes">
        <source>About %n second(s).</source>
        <translation>
            <numerusform>Etwa %n Sekunde.</numerusform>
            <numerusform>Etwa %n Sekunden.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n minute(s).</source>
        <translation>
            <numerusform>Etwa %n Minute.</numerusform>
            <numerusform>Etwa %n Minuten.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 und %n weitere</numerusform>
            <numerusform>%1 und %n weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>Restyled for the first time: %1.</source>
        <translation>Zum ersten Mal umgestaltet: %1.</translation>
    </message>
    <message>
        <source>Another icon: %1.</source>
        <translation>Anderes Symbol: %1.</translation>
    </message>
    <message>
        <source>Back to their own look: %1.</source>
        <translation>Zurück zum eigenen Aussehen: %1.</translation>
    </message>
    <message>
        <source>Names are written anew, in Launchpad and the Dock.</source>
        <translation>Namen werden neu geschrieben, in Launchpad und im Dock.</translation>
    </message>
    <message>
        <source>The Dock is not restarted.</source>
        <translation>Das Dock startet nicht neu.</translation>
    </message>
    <message>
        <source>The Dock restarts once, and vanishes for a moment.</source>
        <translation>Das Dock startet einmal neu und verschwindet für einen Moment.</translation>
    </message>
    <message numerus="yes">
        <source>The Dock restarts %n time(s), and vanishes for a moment each time.</source>
        <translation>
            <numerusform>Das Dock startet %n Mal neu und verschwindet jedes Mal für einen Moment.</numerusform>
            <numerusform>Das Dock startet %n Mal neu und verschwindet jedes Mal für einen Moment.</numerusform>
        </translation>
    </message>
    <message>
        <source>A backup is made before anything changes.</source>
        <translation>Bevor sich etwas ändert, wird ein Backup angelegt.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Not as planned: %1</source>
        <translation>Nicht wie geplant: %1</translation>
    </message>
    <message>
        <source>Launchpad and the Dock could not be read back, so nobody has looked whether they show it.</source>
        <translation>Launchpad und Dock konnten nicht noch einmal gelesen werden; niemand hat also nachgesehen, ob sie es zeigen.</translation>
    </message>
    <message>
        <source>Everything is applied</source>
        <translation>Alles ist angewendet</translation>
    </message>
    <message>
        <source>Applied, but not everything went as planned</source>
        <translation>Angewendet, aber nicht alles lief wie geplant</translation>
    </message>
    <message>
        <source>The state before is in the backup “%1”.</source>
        <translation>Der Stand davor ist im Backup „%1“.</translation>
    </message>
    <message>
        <source>There was nothing to apply</source>
        <translation>Es gab nichts anzuwenden</translation>
    </message>
    <message>
        <source>Nothing was changed</source>
        <translation>Nichts wurde geändert</translation>
    </message>
    <message>
        <source>This cannot be applied now</source>
        <translation>Das kann jetzt nicht angewendet werden</translation>
    </message>
    <message>
        <source>Your changes are applied</source>
        <translation>Deine Änderungen sind angewendet</translation>
    </message>
    <message numerus="yes">
        <source>%n app(s) changed in Launchpad and the Dock.</source>
        <translation>
            <numerusform>%n App hat sich in Launchpad und Dock geändert.</numerusform>
            <numerusform>%n Apps haben sich in Launchpad und Dock geändert.</numerusform>
        </translation>
    </message>
    <message>
        <source>Launchpad and the Dock look as you chose.</source>
        <translation>Launchpad und Dock sehen aus, wie du es gewählt hast.</translation>
    </message>
</context>
<context>
    <name>tavrik::BackupDetail</name>
    <message>
        <source>What has changed since cannot be told. %1</source>
        <translation>Was sich seither geändert hat, lässt sich nicht sagen. %1</translation>
    </message>
    <message>
        <source>Nothing has moved since.</source>
        <translation>Seither hat sich nichts bewegt.</translation>
    </message>
    <message>
        <source>Since then: %1.</source>
        <translation>Seither: %1.</translation>
    </message>
</context>
<context>
    <name>tavrik::BackupsPage</name>
    <message>
        <source>Original State</source>
        <translation>Originalzustand</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Kept for good</source>
        <translation>Wird für immer behalten</translation>
    </message>
    <message>
        <source>The newest first</source>
        <translation>Die neuesten zuerst</translation>
    </message>
    <message>
        <source>The number of backups to keep could not be saved.</source>
        <translation>Die Zahl der Backups, die behalten werden, konnte nicht gesichert werden.</translation>
    </message>
    <message>
        <source>The first backup is kept for good.</source>
        <translation>Das erste Backup wird für immer behalten.</translation>
    </message>
    <message numerus="yes">
        <source>The next backup deletes the oldest %n.</source>
        <translation>
            <numerusform>Das nächste Backup löscht das älteste.</numerusform>
            <numerusform>Das nächste Backup löscht die %n ältesten.</numerusform>
        </translation>
    </message>
    <message>
        <source>Besides the Original State.</source>
        <translation>Außer dem Originalzustand.</translation>
    </message>
    <message>
        <source>Taking a backup…</source>
        <translation>Ein Backup wird angelegt …</translation>
    </message>
    <message>
        <source>The backup is taken, and was read back.</source>
        <translation>Das Backup ist angelegt und wurde noch einmal gelesen.</translation>
    </message>
    <message>
        <source>Reading the backup…</source>
        <translation>Das Backup wird gelesen …</translation>
    </message>
    <message>
        <source>This backup is whole and can be restored.</source>
        <translation>Dieses Backup ist vollständig und kann wiederhergestellt werden.</translation>
    </message>
    <message>
        <source>Restoring Launchpad and the Dock…</source>
        <translation>Launchpad und Dock werden wiederhergestellt …</translation>
    </message>
    <message>
        <source>Launchpad and the Dock are as in this backup. What was there before could not be backed up: its files were missing or damaged.</source>
        <translation>Launchpad und Dock sind wie in diesem Backup. Was vorher da war, konnte nicht gesichert werden: Dateien fehlten oder waren beschädigt.</translation>
    </message>
    <message>
        <source>Launchpad and the Dock are as in this backup. What was there before is the newest backup now.</source>
        <translation>Launchpad und Dock sind wie in diesem Backup. Was vorher da war, ist jetzt das neueste Backup.</translation>
    </message>
    <message>
        <source>Your backup is restored</source>
        <translation>Dein Backup ist wiederhergestellt</translation>
    </message>
    <message>
        <source>Your backup was not restored</source>
        <translation>Dein Backup wurde nicht wiederhergestellt</translation>
    </message>
</context>
<context>
    <name>tavrik::EditActions</name>
    <message>
        <source>Undo</source>
        <translation>Widerrufen</translation>
    </message>
    <message>
        <source>Undo Icon Change</source>
        <translation>Symboländerung widerrufen</translation>
    </message>
    <message>
        <source>Undo Theme Change</source>
        <translation>Themenänderung widerrufen</translation>
    </message>
    <message>
        <source>Undo Font Change</source>
        <translation>Schriftänderung widerrufen</translation>
    </message>
    <message>
        <source>Undo Changes</source>
        <translation>Änderungen widerrufen</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Redo Icon Change</source>
        <translation>Symboländerung wiederholen</translation>
    </message>
    <message>
        <source>Redo Theme Change</source>
        <translation>Themenänderung wiederholen</translation>
    </message>
    <message>
        <source>Redo Font Change</source>
        <translation>Schriftänderung wiederholen</translation>
    </message>
    <message>
        <source>Redo Changes</source>
        <translation>Änderungen wiederholen</translation>
    </message>
    <message>
        <source>This step cannot be undone now: the disk does not answer. Try again.</source>
        <translation>Dieser Schritt kann jetzt nicht widerrufen werden: Das Volume antwortet nicht. Versuche es noch einmal.</translation>
    </message>
    <message>
        <source>This step cannot be made again now: the disk does not answer. Try again.</source>
        <translation>Dieser Schritt kann jetzt nicht wiederholt werden: Das Volume antwortet nicht. Versuche es noch einmal.</translation>
    </message>
    <message>
        <source>Discarded. Undo brings everything back.</source>
        <translation>Verworfen. Widerrufen bringt alles zurück.</translation>
    </message>
    <message>
        <source>What is staged cannot be discarded now: the disk does not answer. Try again.</source>
        <translation>Was vorgemerkt ist, kann jetzt nicht verworfen werden: Das Volume antwortet nicht. Versuche es noch einmal.</translation>
    </message>
</context>
<context>
    <name>tavrik::FolderImportModel</name>
    <message>
        <source>By identifier</source>
        <translation>Nach Kennung</translation>
    </message>
    <message>
        <source>By name</source>
        <translation>Nach Namen</translation>
    </message>
    <message>
        <source>By similar name</source>
        <translation>Nach ähnlichem Namen</translation>
    </message>
    <message>
        <source>A guess, %1 %</source>
        <translation>Eine Vermutung, %1 %</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more; the largest is taken</source>
        <translation>
            <numerusform>%1 und %n weiteres; das größte wird genommen</numerusform>
            <numerusform>%1 und %n weitere; das größte wird genommen</numerusform>
        </translation>
    </message>
    <message>
        <source>Not needed (%1): %2</source>
        <translation>Nicht gebraucht (%1): %2</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Making “%1”…</source>
        <translation>„%1“ wird angelegt …</translation>
    </message>
    <message>
        <source>None of the pictures can be used, so no theme was made.</source>
        <translation>Keines der Bilder ist brauchbar; es wurde kein Thema angelegt.</translation>
    </message>
    <message numerus="yes">
        <source>“%1” is made, with %n icon(s).</source>
        <translation>
            <numerusform>„%1“ ist angelegt, mit %n Symbol.</numerusform>
            <numerusform>„%1“ ist angelegt, mit %n Symbolen.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tavrik::FontsPage</name>
    <message>
        <source>Your names return to plain letters when you apply.</source>
        <translation>Deine Namen kehren beim Anwenden zu schlichten Buchstaben zurück.</translation>
    </message>
    <message>
        <source>Your names change to %1 when you apply.</source>
        <translation>Deine Namen wechseln beim Anwenden zu %1.</translation>
    </message>
    <message>
        <source>Your names are in %1.</source>
        <translation>Deine Namen stehen in %1.</translation>
    </message>
    <message>
        <source>Your names are in plain letters.</source>
        <translation>Deine Namen stehen in schlichten Buchstaben.</translation>
    </message>
    <message numerus="yes">
        <source>%n name(s) with characters no style has: %1</source>
        <translation>
            <numerusform>%n Name mit Zeichen, die kein Stil hat: %1</numerusform>
            <numerusform>%n Namen mit Zeichen, die kein Stil hat: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n name(s) with characters this style lacks: %1</source>
        <translation>
            <numerusform>%n Name mit Zeichen, die diesem Stil fehlen: %1</numerusform>
            <numerusform>%n Namen mit Zeichen, die diesem Stil fehlen: %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tavrik::HealthPage</name>
    <message>
        <source>It was right by itself.</source>
        <translation>Es war von selbst wieder richtig.</translation>
    </message>
    <message>
        <source>Looking at Launchpad, the Dock, wrappers, icons and backups…</source>
        <translation>Launchpad, Dock, Wrapper, Symbole und Backups werden angesehen …</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Everything is as it should be.</source>
        <translation>Alles ist, wie es sein soll.</translation>
    </message>
    <message numerus="yes">
        <source>%n thing(s) are not as they should be.</source>
        <translation>
            <numerusform>%n Sache ist nicht, wie sie sein soll.</numerusform>
            <numerusform>%n Sachen sind nicht, wie sie sein sollen.</numerusform>
        </translation>
    </message>
    <message>
        <source>Mending…</source>
        <translation>Wird repariert …</translation>
    </message>
    <message>
        <source>Not everything could be mended.</source>
        <translation>Nicht alles konnte repariert werden.</translation>
    </message>
    <message>
        <source>Everything is mended.</source>
        <translation>Alles ist repariert.</translation>
    </message>
    <message>
        <source>What could be mended is mended.</source>
        <translation>Was repariert werden konnte, ist repariert.</translation>
    </message>
    <message>
        <source>The state before is the newest backup now.</source>
        <translation>Der Stand davor ist jetzt das neueste Backup.</translation>
    </message>
    <message>
        <source>Something is staged: apply it, and everything looks as before.</source>
        <translation>Etwas ist vorgemerkt: Wende es an, und alles sieht aus wie zuvor.</translation>
    </message>
</context>
<context>
    <name>tavrik::LeavingPage</name>
    <message numerus="yes">
        <source>restyled app(s)</source>
        <translation>
            <numerusform>umgestaltete App</numerusform>
            <numerusform>umgestaltete Apps</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>stand-in(s) on the disk</source>
        <translation>
            <numerusform>Stellvertreter auf dem Volume</numerusform>
            <numerusform>Stellvertreter auf dem Volume</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>tile(s) of the Dock</source>
        <translation>
            <numerusform>Kachel im Dock</numerusform>
            <numerusform>Kacheln im Dock</numerusform>
        </translation>
    </message>
    <message>
        <source>the style of all names</source>
        <translation>der Stil aller Namen</translation>
    </message>
    <message numerus="yes">
        <source>name(s) in styled letters</source>
        <translation>
            <numerusform>Name in gestalteten Buchstaben</numerusform>
            <numerusform>Namen in gestalteten Buchstaben</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>change(s) stopped half-way</source>
        <translation>
            <numerusform>Änderung auf halbem Weg angehalten</numerusform>
            <numerusform>Änderungen auf halbem Weg angehalten</numerusform>
        </translation>
    </message>
    <message>
        <source>icons of your apps</source>
        <translation>Symbole deiner Apps</translation>
    </message>
    <message numerus="yes">
        <source>in %n theme(s)</source>
        <translation>
            <numerusform>in %n Thema</numerusform>
            <numerusform>in %n Themen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n backup(s)</source>
        <translation>
            <numerusform>in %n Backup</numerusform>
            <numerusform>in %n Backups</numerusform>
        </translation>
    </message>
    <message>
        <source>Looking what there is…</source>
        <translation>Es wird nachgesehen, was da ist …</translation>
    </message>
    <message>
        <source>Taking everything back…</source>
        <translation>Alles wird zurückgenommen …</translation>
    </message>
    <message>
        <source>Nothing was changed. %1</source>
        <translation>Nichts wurde geändert. %1</translation>
    </message>
    <message>
        <source>Nothing is taken back</source>
        <translation>Nichts ist zurückgenommen</translation>
    </message>
    <message>
        <source>What was there before, but for restyled apps and styled names, is the newest backup now.</source>
        <translation>Was vorher da war, ist jetzt das neueste Backup, ohne umgestaltete Apps und gestaltete Namen.</translation>
    </message>
    <message>
        <source>Everything is taken back</source>
        <translation>Alles ist zurückgenommen</translation>
    </message>
    <message>
        <source>Not everything is taken back</source>
        <translation>Nicht alles ist zurückgenommen</translation>
    </message>
    <message>
        <source>Launchpad and the Dock look as they did without Tavrik.</source>
        <translation>Launchpad und Dock sehen aus wie ohne Tavrik.</translation>
    </message>
    <message>
        <source>Deleting what Tavrik keeps…</source>
        <translation>Was Tavrik aufbewahrt, wird gelöscht …</translation>
    </message>
</context>
<context>
    <name>tavrik::Menus</name>
    <message>
        <source>Tavrik</source>
        <translation>Tavrik</translation>
    </message>
    <message>
        <source>About Tavrik</source>
        <translation>Über Tavrik</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Einstellungen …</translation>
    </message>
    <message>
        <source>Quit Tavrik</source>
        <translation>Tavrik beenden</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Ablage</translation>
    </message>
    <message>
        <source>Add Icons…</source>
        <translation>Symbole hinzufügen …</translation>
    </message>
    <message>
        <source>New Theme…</source>
        <translation>Neues Thema …</translation>
    </message>
    <message>
        <source>Import Theme…</source>
        <translation>Thema importieren …</translation>
    </message>
    <message>
        <source>Make a Theme of a Folder…</source>
        <translation>Thema aus einem Ordner machen …</translation>
    </message>
    <message>
        <source>Apply Changes…</source>
        <translation>Änderungen anwenden …</translation>
    </message>
    <message>
        <source>Discard Changes</source>
        <translation>Änderungen verwerfen</translation>
    </message>
    <message>
        <source>Refresh Launchpad and Dock</source>
        <translation>Launchpad und Dock auffrischen</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>Fenster schließen</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Find…</source>
        <translation>Suchen …</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Darstellung</translation>
    </message>
    <message>
        <source>Your Apps</source>
        <translation>Deine Apps</translation>
    </message>
    <message>
        <source>System Apps</source>
        <translation>System-Apps</translation>
    </message>
    <message>
        <source>Themes</source>
        <translation>Themen</translation>
    </message>
    <message>
        <source>Fonts</source>
        <translation>Schriften</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Im Dock ablegen</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoomen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>How Tavrik Works</source>
        <translation>Wie Tavrik funktioniert</translation>
    </message>
    <message>
        <source>Check the Health…</source>
        <translation>Zustand prüfen …</translation>
    </message>
    <message>
        <source>Leave Tavrik…</source>
        <translation>Tavrik verlassen …</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Nach Updates suchen …</translation>
    </message>
    <message>
        <source>Tavrik Help</source>
        <translation>Hilfe zu Tavrik</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Ausschneiden</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einsetzen</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
</context>
<context>
    <name>tavrik::OneTheme</name>
    <message>
        <source>Covers %1 of %2 apps</source>
        <translation>Deckt %1 von %2 Apps ab</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Covered</source>
        <translation>Abgedeckt</translation>
    </message>
    <message>
        <source>Lacking</source>
        <translation>Fehlend</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Ausgeblendet</translation>
    </message>
    <message>
        <source>Not Restylable</source>
        <translation>Nicht umgestaltbar</translation>
    </message>
    <message>
        <source>Not Installed</source>
        <translation>Nicht installiert</translation>
    </message>
    <message>
        <source>%1  %2</source>
        <translation>%1  %2</translation>
    </message>
    <message>
        <source>%1 is no longer hidden, as of now.</source>
        <translation>%1 ist ab jetzt nicht mehr ausgeblendet.</translation>
    </message>
    <message>
        <source>%1 is still hidden: the change could not be saved.</source>
        <translation>%1 ist weiter ausgeblendet: Die Änderung konnte nicht gesichert werden.</translation>
    </message>
    <message>
        <source>“%1” is no picture that can be taken in. PNG, JPEG, SVG, ICNS and the like can.</source>
        <translation>„%1“ ist kein Bild, das übernommen werden kann. PNG, JPEG, SVG, ICNS und ähnliche gehen.</translation>
    </message>
    <message>
        <source>Adding icons…</source>
        <translation>Symbole werden hinzugefügt …</translation>
    </message>
    <message numerus="yes">
        <source>%n icon(s) added.</source>
        <translation>
            <numerusform>%n Symbol hinzugefügt.</numerusform>
            <numerusform>%n Symbole hinzugefügt.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tavrik::PictureDrop</name>
    <message>
        <source>The picture</source>
        <translation>Das Bild</translation>
    </message>
    <message>
        <source>“%1” cannot be made an icon.</source>
        <translation>„%1“ lässt sich nicht zu einem Symbol machen.</translation>
    </message>
</context>
<context>
    <name>tavrik::PreferencesPage</name>
    <message>
        <source>This could not be saved. Is the disk full?</source>
        <translation>Das konnte nicht gesichert werden. Ist das Volume voll?</translation>
    </message>
</context>
<context>
    <name>tavrik::PreviewDock</name>
    <message>
        <source>Finder</source>
        <translation>Finder</translation>
    </message>
    <message>
        <source>Trash</source>
        <translation>Papierkorb</translation>
    </message>
</context>
<context>
    <name>tavrik::PrivacySettings</name>
    <message>
        <source>The system&apos;s settings could not be opened.</source>
        <translation>Die Systemeinstellungen konnten nicht geöffnet werden.</translation>
    </message>
</context>
<context>
    <name>tavrik::ThemeIconsModel</name>
    <message>
        <source>To be deleted</source>
        <translation>Wird gelöscht</translation>
    </message>
    <message>
        <source>To be hidden</source>
        <translation>Wird ausgeblendet</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Ausgeblendet</translation>
    </message>
    <message>
        <source>No icon</source>
        <translation>Kein Symbol</translation>
    </message>
    <message>
        <source>Cannot be restyled</source>
        <translation>Kann nicht umgestaltet werden</translation>
    </message>
    <message>
        <source>Not installed</source>
        <translation>Nicht installiert</translation>
    </message>
</context>
<context>
    <name>tavrik::ThemeLook</name>
    <message>
        <source>This could not be saved. Is the disk full?</source>
        <translation>Das konnte nicht gesichert werden. Ist das Volume voll?</translation>
    </message>
</context>
<context>
    <name>tavrik::ThemesModel</name>
    <message>
        <source>No icons yet</source>
        <translation>Noch keine Symbole</translation>
    </message>
    <message>
        <source>Covers %1 of %2 apps</source>
        <translation>Deckt %1 von %2 Apps ab</translation>
    </message>
</context>
<context>
    <name>tavrik::ThemesPage</name>
    <message>
        <source>Making “%1”…</source>
        <translation>„%1“ wird angelegt …</translation>
    </message>
    <message>
        <source>Applying “%1”…</source>
        <translation>„%1“ wird angewendet …</translation>
    </message>
    <message>
        <source>Left alone, since they cannot be restyled: %1.</source>
        <translation>Ausgelassen, da nicht umgestaltbar: %1.</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>“%1” has no icon to apply for any app.</source>
        <translation>„%1“ hat für keine App ein Symbol zum Anwenden.</translation>
    </message>
    <message numerus="yes">
        <source>“%1” is chosen for %n app(s). Your Mac stays as it is until you apply.</source>
        <translation>
            <numerusform>„%1“ ist für %n App gewählt. Dein Mac bleibt, wie er ist, bis du es anwendest.</numerusform>
            <numerusform>„%1“ ist für %n Apps gewählt. Dein Mac bleibt, wie er ist, bis du es anwendest.</numerusform>
        </translation>
    </message>
    <message>
        <source>Importing “%1”…</source>
        <translation>„%1“ wird importiert …</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>„%1“</translation>
    </message>
    <message>
        <source>Imported %1.</source>
        <translation>%1 importiert.</translation>
    </message>
    <message>
        <source>Exporting “%1”…</source>
        <translation>„%1“ wird exportiert …</translation>
    </message>
    <message>
        <source>“%1” is saved as “%2”.</source>
        <translation>„%1“ ist als „%2“ gesichert.</translation>
    </message>
    <message>
        <source>“%1” is a picture. Open the theme that it is for, and drop it there.</source>
        <translation>„%1“ ist ein Bild. Öffne das Thema, für das es ist, und lege es dort ab.</translation>
    </message>
    <message>
        <source>“%1” is neither a theme file nor a folder of pictures.</source>
        <translation>„%1“ ist weder eine Themendatei noch ein Ordner mit Bildern.</translation>
    </message>
</context>
<context>
    <name>tavrik::UpdateOffer</name>
    <message>
        <source>You are not told of Tavrik %1 again.</source>
        <translation>Tavrik %1 wird dir nicht mehr gemeldet.</translation>
    </message>
    <message>
        <source>Looking for a newer version…</source>
        <translation>Nach einer neueren Version wird gesucht …</translation>
    </message>
    <message>
        <source>It takes ten seconds at most.</source>
        <translation>Es dauert höchstens zehn Sekunden.</translation>
    </message>
    <message>
        <source>Tavrik may not use the network</source>
        <translation>Tavrik darf das Netz nicht verwenden</translation>
    </message>
    <message>
        <source>You switched it off for good. Allow it in the settings to look for a newer version.</source>
        <translation>Du hast es ganz ausgeschaltet. Erlaube es in den Einstellungen, um nach einer neueren Version zu suchen.</translation>
    </message>
    <message>
        <source>Tavrik could not look for updates</source>
        <translation>Tavrik konnte nicht nach Updates suchen</translation>
    </message>
    <message>
        <source>Nobody was asked yet.</source>
        <translation>Es wurde noch niemand gefragt.</translation>
    </message>
    <message>
        <source>You have the newest version</source>
        <translation>Du hast die neueste Version</translation>
    </message>
    <message>
        <source>You have %1. The download is %2 large.</source>
        <translation>Du hast %1. Der Download ist %2 groß.</translation>
    </message>
    <message>
        <source>Tavrik %1 is available</source>
        <translation>Tavrik %1 ist verfügbar</translation>
    </message>
    <message>
        <source>%1 It runs on %2.</source>
        <translation>%1 Es läuft auf %2.</translation>
    </message>
    <message>
        <source>Tavrik %1 is not for this Mac</source>
        <translation>Tavrik %1 ist nicht für diesen Mac</translation>
    </message>
    <message>
        <source>It runs on %1, and this Mac has macOS %2. Tavrik %3, which you have, stays as it is.</source>
        <translation>Es läuft auf %1, und dieser Mac hat macOS %2. Dein Tavrik %3 bleibt, wie es ist.</translation>
    </message>
</context>
<context>
    <name>tavrik::UpdatesPage</name>
    <message>
        <source>no server</source>
        <translation>kein Server</translation>
    </message>
    <message>
        <source>The network is switched off.</source>
        <translation>Das Netz ist ausgeschaltet.</translation>
    </message>
    <message>
        <source>Whether there is a newer version is not known.</source>
        <translation>Ob es eine neuere Version gibt, ist nicht bekannt.</translation>
    </message>
    <message>
        <source>Looking for a newer version…</source>
        <translation>Nach einer neueren Version wird gesucht …</translation>
    </message>
    <message>
        <source>There is no newer version.</source>
        <translation>Es gibt keine neuere Version.</translation>
    </message>
    <message>
        <source>Tavrik %1 is available.</source>
        <translation>Tavrik %1 ist verfügbar.</translation>
    </message>
    <message>
        <source>There is Tavrik %1, which does not run on this macOS.</source>
        <translation>Es gibt Tavrik %1, das auf diesem macOS nicht läuft.</translation>
    </message>
    <message>
        <source>Asking now…</source>
        <translation>Es wird gerade gefragt …</translation>
    </message>
    <message>
        <source>Never asked until now.</source>
        <translation>Bisher wurde nie gefragt.</translation>
    </message>
    <message>
        <source>%1, without success. %2</source>
        <translation>%1, ohne Erfolg. %2</translation>
    </message>
    <message>
        <source>%1, with a good answer.</source>
        <translation>%1, mit guter Antwort.</translation>
    </message>
    <message>
        <source>This could not be saved. Is the disk full?</source>
        <translation>Das konnte nicht gesichert werden. Ist das Volume voll?</translation>
    </message>
</context>
</TS>
