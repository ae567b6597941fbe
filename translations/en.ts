<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>ApplicationsBar</name>
    <message numerus="yes">
        <source>%n app(s)</source>
        <translation>
            <numerusform>%n app</numerusform>
            <numerusform>%n apps</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n app(s)</source>
        <translation>
            <numerusform>%1 of %n app</numerusform>
            <numerusform>%1 of %n apps</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Differences</name>
    <message numerus="yes">
        <source>%n app(s) moved</source>
        <translation>
            <numerusform>%n app moved</numerusform>
            <numerusform>%n apps moved</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n new in Launchpad</source>
        <translation>
            <numerusform>%n new in Launchpad</numerusform>
            <numerusform>%n new in Launchpad</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n gone from Launchpad</source>
        <translation>
            <numerusform>%n gone from Launchpad</numerusform>
            <numerusform>%n gone from Launchpad</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n new in the Dock</source>
        <translation>
            <numerusform>%n new in the Dock</numerusform>
            <numerusform>%n new in the Dock</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n gone from the Dock</source>
        <translation>
            <numerusform>%n gone from the Dock</numerusform>
            <numerusform>%n gone from the Dock</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FolderImportSheet</name>
    <message numerus="yes">
        <source>Pictures for %n app(s) in “%1”</source>
        <translation>
            <numerusform>Pictures for %n app in “%1”</numerusform>
            <numerusform>Pictures for %n apps in “%1”</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PreviewBar</name>
    <message numerus="yes">
        <source>%n change(s), %1 on this page</source>
        <translation>
            <numerusform>%n change, %1 on this page</numerusform>
            <numerusform>%n changes, %1 on this page</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StagedBar</name>
    <message numerus="yes">
        <source>%n change(s) staged. Your Mac stays as it is until you apply.</source>
        <translation>
            <numerusform>%n change staged. Your Mac stays as it is until you apply.</numerusform>
            <numerusform>%n changes staged. Your Mac stays as it is until you apply.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tavrik::ApplicationsList</name>
    <message numerus="yes">
        <source>%n picture(s) not taken in. %1</source>
        <translation>
            <numerusform>%n picture not taken in. %1</numerusform>
            <numerusform>%n pictures not taken in. %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tavrik::ApplyModel</name>
    <message numerus="yes">
        <source>About %n second(s).</source>
        <translation>
            <numerusform>About %n second.</numerusform>
            <numerusform>About %n seconds.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n minute(s).</source>
        <translation>
            <numerusform>About %n minute.</numerusform>
            <numerusform>About %n minutes.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 and %n more</numerusform>
            <numerusform>%1 and %n more</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The Dock restarts %n time(s), and vanishes for a moment each time.</source>
        <translation>
            <numerusform>The Dock restarts %n time, and vanishes for a moment each time.</numerusform>
            <numerusform>The Dock restarts %n times, and vanishes for a moment each time.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n app(s) changed in Launchpad and the Dock.</source>
        <translation>
            <numerusform>%n app changed in Launchpad and the Dock.</numerusform>
            <numerusform>%n apps changed in Launchpad and the Dock.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tavrik::BackupsPage</name>
    <message numerus="yes">
        <source>The next backup deletes the oldest %n.</source>
        <translation>
            <numerusform>The next backup deletes the oldest one.</numerusform>
            <numerusform>The next backup deletes the oldest %n.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tavrik::FolderImportModel</name>
    <message numerus="yes">
        <source>%1 and %n more; the largest is taken</source>
        <translation>
            <numerusform>%1 and %n more; the largest is taken</numerusform>
            <numerusform>%1 and %n more; the largest is taken</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>“%1” is made, with %n icon(s).</source>
        <translation>
            <numerusform>“%1” is made, with %n icon.</numerusform>
            <numerusform>“%1” is made, with %n icons.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tavrik::FontsPage</name>
    <message numerus="yes">
        <source>%n name(s) with characters no style has: %1</source>
        <translation>
            <numerusform>%n name with characters no style has: %1</numerusform>
            <numerusform>%n names with characters no style has: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n name(s) with characters this style lacks: %1</source>
        <translation>
            <numerusform>%n name with characters this style lacks: %1</numerusform>
            <numerusform>%n names with characters this style lacks: %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tavrik::HealthPage</name>
    <message numerus="yes">
        <source>%n thing(s) are not as they should be.</source>
        <translation>
            <numerusform>%n thing is not as it should be.</numerusform>
            <numerusform>%n things are not as they should be.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tavrik::LeavingPage</name>
    <message numerus="yes">
        <source>restyled app(s)</source>
        <translation>
            <numerusform>restyled app</numerusform>
            <numerusform>restyled apps</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>stand-in(s) on the disk</source>
        <translation>
            <numerusform>stand-in on the disk</numerusform>
            <numerusform>stand-ins on the disk</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>tile(s) of the Dock</source>
        <translation>
            <numerusform>tile of the Dock</numerusform>
            <numerusform>tiles of the Dock</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>name(s) in styled letters</source>
        <translation>
            <numerusform>name in styled letters</numerusform>
            <numerusform>names in styled letters</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>change(s) stopped half-way</source>
        <translation>
            <numerusform>change stopped half-way</numerusform>
            <numerusform>changes stopped half-way</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n theme(s)</source>
        <translation>
            <numerusform>in %n theme</numerusform>
            <numerusform>in %n themes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n backup(s)</source>
        <translation>
            <numerusform>in %n backup</numerusform>
            <numerusform>in %n backups</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tavrik::OneTheme</name>
    <message numerus="yes">
        <source>%n icon(s) added.</source>
        <translation>
            <numerusform>%n icon added.</numerusform>
            <numerusform>%n icons added.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tavrik::ThemesPage</name>
    <message numerus="yes">
        <source>“%1” is chosen for %n app(s). Your Mac stays as it is until you apply.</source>
        <translation>
            <numerusform>“%1” is chosen for %n app. Your Mac stays as it is until you apply.</numerusform>
            <numerusform>“%1” is chosen for %n apps. Your Mac stays as it is until you apply.</numerusform>
        </translation>
    </message>
</context>
</TS>
