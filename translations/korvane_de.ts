<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>CActionMenu</name>
    <message>
        <source>&amp;Action</source>
        <translation>A&amp;ktion</translation>
    </message>
    <message>
        <source>Can&apos;t Undo</source>
        <translation>Rückgängig nicht möglich</translation>
    </message>
    <message>
        <source>Can&apos;t Redo</source>
        <translation>Wiederholen nicht möglich</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Rückgängig: %1</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Wiederholen: %1</translation>
    </message>
</context>
<context>
    <name>CBoardRenderer</name>
    <message>
        <source>The board has no picture to draw on</source>
        <translation>Das Spielfeld hat kein Bild, auf das gezeichnet werden kann</translation>
    </message>
    <message>
        <source>The scale must be a positive number</source>
        <translation>Der Maßstab muss eine positive Zahl sein</translation>
    </message>
    <message>
        <source>A picture of %1 x %2 pixels is too large to make</source>
        <translation>Ein Bild mit %1 x %2 Pixeln ist zu groß</translation>
    </message>
    <message>
        <source>There is not enough memory for the picture</source>
        <translation>Für das Bild ist nicht genug Speicher vorhanden</translation>
    </message>
</context>
<context>
    <name>CBoardReview</name>
    <message>
        <source>Space or Right: next change. Left: back. Escape: end.</source>
        <translation>Leertaste oder Rechts: nächste Änderung. Links: zurück. Escape: Ende.</translation>
    </message>
    <message>
        <source>%1 → %2: %3</source>
        <translation>%1 → %2: %3</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
</context>
<context>
    <name>CCommandGuard</name>
    <message>
        <source>There is not enough memory to complete this command.</source>
        <translation>Für diesen Befehl ist nicht genug Speicher vorhanden.</translation>
    </message>
</context>
<context>
    <name>CContextMgr</name>
    <message>
        <source>Searching for Games...</source>
        <translation>Spiele werden gesucht...</translation>
    </message>
    <message>
        <source>Module &apos;%1&apos; was loaded...</source>
        <translation>Modul „%1“ wurde geladen...</translation>
    </message>
</context>
<context>
    <name>CFileCheck</name>
    <message>
        <source>&apos;%1&apos; is not a game of this module.</source>
        <translation>„%1“ ist kein Spiel dieses Moduls.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; could not be read: %2</source>
        <translation>„%1“ konnte nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; holds another game; only files of the same game can be compared.</source>
        <translation>„%1“ enthält ein anderes Spiel; nur Dateien desselben Spiels lassen sich vergleichen.</translation>
    </message>
    <message>
        <source>Earlier maps unchanged since %1</source>
        <translation>Frühere Karten seit %1 unverändert</translation>
    </message>
    <message>
        <source>1 earlier map differs from %1</source>
        <translation>1 frühere Karte weicht von %1 ab</translation>
    </message>
    <message>
        <source>%1 earlier maps differ from %2</source>
        <translation>%1 frühere Karten weichen von %2 ab</translation>
    </message>
</context>
<context>
    <name>CFileDialogs</name>
    <message>
        <source>All Files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Save Game As</source>
        <translation>Spiel speichern unter</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
</context>
<context>
    <name>CFileMenu</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;New Game</source>
        <translation>&amp;Neues Spiel</translation>
    </message>
    <message>
        <source>&amp;Open Game...</source>
        <translation>Spiel ö&amp;ffnen...</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>&amp;Save Game</source>
        <translation>Spiel &amp;speichern</translation>
    </message>
    <message>
        <source>Save Game &amp;As...</source>
        <translation>Spiel speichern &amp;unter...</translation>
    </message>
    <message>
        <source>&amp;Export Map Picture...</source>
        <translation>Karte als &amp;Bild exportieren...</translation>
    </message>
    <message>
        <source>Sen&amp;d to Opponent...</source>
        <translation>An &amp;Gegner senden...</translation>
    </message>
    <message>
        <source>Print...</source>
        <translation>Drucken...</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>B&amp;eenden</translation>
    </message>
    <message>
        <source>File &apos;%1&apos; no longer exists. It has been removed from the list of recent games.</source>
        <translation>Die Datei „%1“ existiert nicht mehr. Sie wurde aus der Liste der zuletzt geöffneten Spiele entfernt.</translation>
    </message>
    <message>
        <source>Export the picture at the current zoom (%1 %)?

No exports it at 100 %.</source>
        <translation>Das Bild in der aktuellen Vergrößerung (%1 %) exportieren?

Bei „Nein“ wird es in 100 % exportiert.</translation>
    </message>
    <message>
        <source>PNG Pictures (*.png)|*.png</source>
        <translation>PNG-Bilder (*.png)|*.png</translation>
    </message>
    <message>
        <source>The picture could not be saved.

%1</source>
        <translation>Das Bild konnte nicht gespeichert werden.

%1</translation>
    </message>
    <message>
        <source>No mail program could be started. The folder that holds &apos;%1&apos; has been opened, so you can attach the game yourself.</source>
        <translation>Es konnte kein E-Mail-Programm gestartet werden. Der Ordner mit „%1“ wurde geöffnet, damit Sie das Spiel selbst anhängen können.</translation>
    </message>
    <message>
        <source>No mail program could be started. Attach the game file yourself:

%1</source>
        <translation>Es konnte kein E-Mail-Programm gestartet werden. Hängen Sie die Spieldatei selbst an:

%1</translation>
    </message>
    <message>
        <source>Compare With &amp;File...</source>
        <translation>Mit &amp;Datei vergleichen...</translation>
    </message>
    <message>
        <source>The picture could not be saved.</source>
        <translation>Das Bild konnte nicht gespeichert werden.</translation>
    </message>
</context>
<context>
    <name>CGame</name>
    <message>
        <source>A game cannot store more than 32767 map groups</source>
        <translation>Ein Spiel kann nicht mehr als 32767 Archive speichern</translation>
    </message>
    <message>
        <source>The game holds more than %1 maps, more than Korvane can open</source>
        <translation>Das Spiel enthält mehr als %1 Karten, mehr als Korvane öffnen kann</translation>
    </message>
</context>
<context>
    <name>CGameCommands</name>
    <message>
        <source>You currently don&apos;t have any Korvane Modules loaded on your system!</source>
        <translation>Auf Ihrem System ist zurzeit kein Korvane-Modul geladen!</translation>
    </message>
    <message>
        <source>Creating a new game...</source>
        <translation>Neues Spiel wird erstellt...</translation>
    </message>
    <message>
        <source>File &apos;%1&apos; is either invalid or you do not have the corresponding Module installed.</source>
        <translation>Die Datei „%1“ ist entweder ungültig, oder das zugehörige Modul ist nicht installiert.</translation>
    </message>
    <message>
        <source>Opening &apos;%1&apos;...</source>
        <translation>„%1“ wird geöffnet...</translation>
    </message>
    <message>
        <source>The module &apos;%1&apos; cannot start a new game.

%2</source>
        <translation>Das Modul „%1“ kann kein neues Spiel beginnen.

%2</translation>
    </message>
</context>
<context>
    <name>CGameFile</name>
    <message>
        <source>The game could not be compressed (zlib error %1)</source>
        <translation>Das Spiel konnte nicht komprimiert werden (zlib-Fehler %1)</translation>
    </message>
    <message>
        <source>it is not a Korvane game file</source>
        <translation>die Datei ist keine Korvane-Spieldatei</translation>
    </message>
    <message>
        <source>the file ends inside its header</source>
        <translation>die Datei endet mitten im Dateikopf</translation>
    </message>
    <message>
        <source>its declared body length (%1 bytes) cannot be right</source>
        <translation>die angegebene Datenlänge (%1 Bytes) kann nicht stimmen</translation>
    </message>
    <message>
        <source>its compressed body is damaged</source>
        <translation>die komprimierten Daten sind beschädigt</translation>
    </message>
</context>
<context>
    <name>CGameMenu</name>
    <message>
        <source>&amp;Game</source>
        <translation>&amp;Spiel</translation>
    </message>
    <message>
        <source>Game &amp;Properties...</source>
        <translation>Spiel&amp;eigenschaften...</translation>
    </message>
    <message>
        <source>Can&apos;t Add Map</source>
        <translation>Karte hinzufügen nicht möglich</translation>
    </message>
    <message>
        <source>Can&apos;t Remove Map</source>
        <translation>Karte entfernen nicht möglich</translation>
    </message>
    <message>
        <source>&amp;Map Properties...</source>
        <translation>&amp;Karteneigenschaften...</translation>
    </message>
    <message>
        <source>&amp;Add Map...</source>
        <translation>Karte &amp;hinzufügen...</translation>
    </message>
    <message>
        <source>&amp;Remove &apos;%1&apos;</source>
        <translation>„%1“ ent&amp;fernen</translation>
    </message>
    <message>
        <source>Turn %1</source>
        <translation>Zug %1</translation>
    </message>
    <message>
        <source>Removal of &apos;%1&apos; cannot be undone.

Do you want to continue ?</source>
        <translation>Das Entfernen von „%1“ kann nicht rückgängig gemacht werden.

Möchten Sie fortfahren?</translation>
    </message>
</context>
<context>
    <name>CHelpMenu</name>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Email Us...</source>
        <translation>&amp;E-Mail an uns...</translation>
    </message>
    <message>
        <source>&amp;Visit Us On The Web...</source>
        <translation>&amp;Website besuchen...</translation>
    </message>
    <message>
        <source>&amp;About...</source>
        <translation>Ü&amp;ber Korvane...</translation>
    </message>
</context>
<context>
    <name>CKorvane</name>
    <message>
        <source>Initializing...</source>
        <translation>Wird gestartet...</translation>
    </message>
    <message>
        <source>Finished...</source>
        <translation>Fertig...</translation>
    </message>
</context>
<context>
    <name>CMap</name>
    <message>
        <source>A map cannot store more than %1 %2; this one has %3</source>
        <translation>Eine Karte kann nicht mehr als %1 %2 speichern; diese hat %3</translation>
    </message>
    <message>
        <source>The counter &quot;%1&quot; is not part of the active game module, so the map cannot be read</source>
        <translation>Der Spielstein „%1“ gehört nicht zum aktiven Modul, daher kann die Karte nicht gelesen werden</translation>
    </message>
    <message>
        <source>The counter &quot;%1&quot; of a unit is not part of the active game module</source>
        <translation>Der Spielstein „%1“ gehört nicht zum aktiven Modul</translation>
    </message>
    <message>
        <source>The units of a map cannot be swapped out while no game module is active</source>
        <translation>Die Spielsteine einer Karte können nicht ausgelagert werden, solange kein Modul aktiv ist</translation>
    </message>
    <message>
        <source>not every byte could be written (is the disk full?)</source>
        <translation>es konnten nicht alle Bytes geschrieben werden (ist der Datenträger voll?)</translation>
    </message>
    <message>
        <source>The swap file %1 cannot be written: %2</source>
        <translation>Die Auslagerungsdatei %1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>The swap file %1 cannot be read: %2</source>
        <translation>Die Auslagerungsdatei %1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>it is empty or too large</source>
        <translation>die Datei ist leer oder zu groß</translation>
    </message>
    <message>
        <source>it was written for the game module &quot;%1&quot;, which is no longer active</source>
        <translation>die Datei wurde für das Modul „%1“ geschrieben, das nicht mehr aktiv ist</translation>
    </message>
    <message>
        <source>a unit names the counter number %1 of %2</source>
        <translation>ein Spielstein nennt den Spielstein Nummer %1 von %2</translation>
    </message>
</context>
<context>
    <name>CMapChange</name>
    <message>
        <source>Arrow</source>
        <translation>Pfeil</translation>
    </message>
    <message>
        <source>%1 added from (%2, %3) to (%4, %5)</source>
        <translation>%1 von (%2, %3) nach (%4, %5) hinzugefügt</translation>
    </message>
    <message>
        <source>%1 from (%2, %3) to (%4, %5) removed</source>
        <translation>%1 von (%2, %3) nach (%4, %5) entfernt</translation>
    </message>
    <message>
        <source>%1 moved from (%2, %3)–(%4, %5) to (%6, %7)–(%8, %9)</source>
        <translation>%1 von (%2, %3)–(%4, %5) nach (%6, %7)–(%8, %9) bewegt</translation>
    </message>
    <message>
        <source>%1 moved from (%2, %3) to (%4, %5), now %6</source>
        <translation>%1 von (%2, %3) nach (%4, %5) bewegt, jetzt %6</translation>
    </message>
    <message>
        <source>%1 moved from (%2, %3) to (%4, %5)</source>
        <translation>%1 von (%2, %3) nach (%4, %5) bewegt</translation>
    </message>
    <message>
        <source>%1 → %2</source>
        <translation>%1 → %2</translation>
    </message>
    <message>
        <source>(no caption)</source>
        <translation>(ohne Beschriftung)</translation>
    </message>
    <message>
        <source>%1 at (%2, %3) changed</source>
        <translation>%1 bei (%2, %3) geändert</translation>
    </message>
    <message>
        <source>%1 added at (%2, %3)</source>
        <translation>%1 bei (%2, %3) hinzugefügt</translation>
    </message>
    <message>
        <source>%1 removed from (%2, %3)</source>
        <translation>%1 bei (%2, %3) entfernt</translation>
    </message>
</context>
<context>
    <name>CMapComparison</name>
    <message>
        <source>1 arrow moved</source>
        <translation>1 Pfeil bewegt</translation>
    </message>
    <message>
        <source>%1 arrows moved</source>
        <translation>%1 Pfeile bewegt</translation>
    </message>
    <message>
        <source>1 arrow added</source>
        <translation>1 Pfeil hinzugefügt</translation>
    </message>
    <message>
        <source>%1 arrows added</source>
        <translation>%1 Pfeile hinzugefügt</translation>
    </message>
    <message>
        <source>1 arrow removed</source>
        <translation>1 Pfeil entfernt</translation>
    </message>
    <message>
        <source>%1 arrows removed</source>
        <translation>%1 Pfeile entfernt</translation>
    </message>
    <message>
        <source>text changed</source>
        <translation>Text geändert</translation>
    </message>
    <message>
        <source>name changed</source>
        <translation>Name geändert</translation>
    </message>
    <message>
        <source>No changes</source>
        <translation>Keine Änderungen</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Map name changed from &quot;%1&quot; to &quot;%2&quot;</source>
        <translation>Kartenname von „%1“ in „%2“ geändert</translation>
    </message>
    <message>
        <source>Map text changed</source>
        <translation>Kartentext geändert</translation>
    </message>
    <message numerus="yes">
        <source>%n moved</source>
        <translation>
            <numerusform>%n bewegt</numerusform>
            <numerusform>%n bewegt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n added</source>
        <translation>
            <numerusform>%n hinzugefügt</numerusform>
            <numerusform>%n hinzugefügt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n removed</source>
        <translation>
            <numerusform>%n entfernt</numerusform>
            <numerusform>%n entfernt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n changed</source>
        <translation>
            <numerusform>%n geändert</numerusform>
            <numerusform>%n geändert</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CMapExport</name>
    <message>
        <source>there is no map to draw</source>
        <translation>es gibt keine Karte zum Zeichnen</translation>
    </message>
    <message>
        <source>the picture cannot be encoded: %1</source>
        <translation>das Bild kann nicht kodiert werden: %1</translation>
    </message>
    <message>
        <source>cannot be written: %1</source>
        <translation>kann nicht geschrieben werden: %1</translation>
    </message>
</context>
<context>
    <name>CMapGroup</name>
    <message>
        <source>A group cannot store more than 32767 maps</source>
        <translation>Ein Archiv kann nicht mehr als 32767 Karten speichern</translation>
    </message>
</context>
<context>
    <name>CModuleDefinition</name>
    <message>
        <source>%1 has no %2</source>
        <translation>%1 hat kein %2</translation>
    </message>
    <message>
        <source>%1 must be a whole number from %2 to %3, not &apos;%4&apos;</source>
        <translation>%1 muss eine ganze Zahl von %2 bis %3 sein, nicht „%4“</translation>
    </message>
    <message>
        <source>%1 must be true, false, 1 or 0, not &apos;%2&apos;</source>
        <translation>%1 muss true, false, 1 oder 0 sein, nicht „%2“</translation>
    </message>
    <message>
        <source>The program&apos;s module grammar is missing</source>
        <translation>Die Modulgrammatik des Programms fehlt</translation>
    </message>
    <message>
        <source>The program&apos;s module grammar cannot be read</source>
        <translation>Die Modulgrammatik des Programms kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Cannot read %1: %2</source>
        <translation>%1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>%1 is too large for a module definition</source>
        <translation>%1 ist zu groß für eine Moduldefinition</translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation>%1 ist leer</translation>
    </message>
    <message>
        <source>The document is not well-formed XML</source>
        <translation>Das Dokument ist kein wohlgeformtes XML</translation>
    </message>
    <message>
        <source>The document brings a DOCTYPE of its own; module definitions follow the program&apos;s grammar only</source>
        <translation>Das Dokument bringt einen eigenen DOCTYPE mit; Moduldefinitionen folgen nur der Grammatik des Programms</translation>
    </message>
    <message>
        <source>Out of memory while checking the module definition</source>
        <translation>Zu wenig Speicher beim Prüfen der Moduldefinition</translation>
    </message>
    <message>
        <source>The document does not follow the module grammar</source>
        <translation>Das Dokument folgt nicht der Modulgrammatik</translation>
    </message>
    <message>
        <source>The root element is &lt;%1&gt;, not &lt;module_def&gt;</source>
        <translation>Das Wurzelelement ist &lt;%1&gt;, nicht &lt;module_def&gt;</translation>
    </message>
    <message>
        <source>The root element is missing, not &lt;module_def&gt;</source>
        <translation>Das Wurzelelement fehlt, statt &lt;module_def&gt;</translation>
    </message>
    <message>
        <source>format_version &apos;%1&apos; is not supported; this program reads version %2</source>
        <translation>format_version „%1“ wird nicht unterstützt; dieses Programm liest Version %2</translation>
    </message>
    <message>
        <source>&lt;min_kr_version&gt; &apos;%1&apos; is not a version such as 1.0.0</source>
        <translation>&lt;min_kr_version&gt; „%1“ ist keine Version wie 1.0.0</translation>
    </message>
    <message>
        <source>The module needs Korvane %1 or later; this is %2</source>
        <translation>Das Modul braucht Korvane %1 oder neuer; dies ist %2</translation>
    </message>
    <message>
        <source>A token has an empty token_id</source>
        <translation>Ein Spielstein hat eine leere token_id</translation>
    </message>
    <message>
        <source>Token &apos;%1&apos; has the unknown type &apos;%2&apos;</source>
        <translation>Der Spielstein „%1“ hat den unbekannten Typ „%2“</translation>
    </message>
    <message>
        <source>Token id &apos;%1&apos; is used twice</source>
        <translation>Die Spielstein-ID „%1“ wird zweimal verwendet</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>Unexpected failure: %1</source>
        <translation>Unerwarteter Fehler: %1</translation>
    </message>
    <message>
        <source>The header must be loaded before the body</source>
        <translation>Der Kopf muss vor dem Rumpf geladen werden</translation>
    </message>
    <message>
        <source>&lt;game_id&gt; needs a unique_id and a version</source>
        <translation>&lt;game_id&gt; braucht eine unique_id und eine version</translation>
    </message>
    <message>
        <source>&lt;label_font_size&gt; must be a size from 1 to 1000, not &apos;%1&apos;</source>
        <translation>&lt;label_font_size&gt; muss eine Größe von 1 bis 1000 sein, nicht „%1“</translation>
    </message>
    <message>
        <source>&lt;mask_html_color&gt; must be a colour such as #FF00FF, not &apos;%1&apos;</source>
        <translation>&lt;mask_html_color&gt; muss eine Farbe wie #FF00FF sein, nicht „%1“</translation>
    </message>
</context>
<context>
    <name>CModuleInstaller</name>
    <message>
        <source>%1 is already installed.</source>
        <translation>%1 ist bereits installiert.</translation>
    </message>
    <message>
        <source>Module already exists</source>
        <translation>Modul existiert bereits</translation>
    </message>
    <message>
        <source>%1 already exits.
Do you want to replace it?</source>
        <translation>%1 existiert bereits.
Möchten Sie es ersetzen?</translation>
    </message>
    <message>
        <source>You must restart Korvane for these settings to take effect.</source>
        <translation>Starten Sie Korvane neu, damit diese Einstellungen wirksam werden.</translation>
    </message>
    <message>
        <source>%1 cannot be installed: the folder %2 does not exist. Nothing has been installed.</source>
        <translation>%1 kann nicht installiert werden: Der Ordner %2 existiert nicht. Es wurde nichts installiert.</translation>
    </message>
</context>
<context>
    <name>CNameCheck</name>
    <message>
        <source>Name cannot be blank.</source>
        <translation>Der Name darf nicht leer sein.</translation>
    </message>
    <message>
        <source>Name cannot contain any of the following characters:<byte value="xd"/>	\/:*?&quot;&lt;&gt;|&amp;</source>
        <translation>Der Name darf keines der folgenden Zeichen enthalten:<byte value="xd"/>	\/:*?&quot;&lt;&gt;|&amp;</translation>
    </message>
    <message>
        <source>A Map named &apos;%1&apos; already exists.</source>
        <translation>Eine Karte namens „%1“ existiert bereits.</translation>
    </message>
</context>
<context>
    <name>CPersistMgr</name>
    <message>
        <source>Korvane Game Files  (*.krf)|*.krf</source>
        <translation>Korvane-Spieldateien  (*.krf)|*.krf</translation>
    </message>
    <message>
        <source>Disk write error!</source>
        <translation>Fehler beim Schreiben auf den Datenträger!</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source>Game files keep texts in the Western (Windows-1252) character set. These texts hold characters outside it, which will be saved as &quot;?&quot;:

%1

Do you want to save the game anyway?</source>
        <translation>Spieldateien speichern Texte im westeuropäischen Zeichensatz (Windows-1252). Diese Texte enthalten Zeichen außerhalb davon, die als „?“ gespeichert werden:

%1

Möchten Sie das Spiel trotzdem speichern?</translation>
    </message>
    <message>
        <source>The current game has been modified.  Do you want to save the changes to this game?</source>
        <translation>Das aktuelle Spiel wurde geändert.  Möchten Sie die Änderungen an diesem Spiel speichern?</translation>
    </message>
    <message>
        <source>File &apos;%1&apos; cannot be opened.

%2</source>
        <translation>Die Datei „%1“ kann nicht geöffnet werden.

%2</translation>
    </message>
    <message>
        <source>it is too large to be a Korvane game file</source>
        <translation>die Datei ist zu groß für eine Korvane-Spieldatei</translation>
    </message>
    <message>
        <source>it was saved with the game module &apos;%1&apos;, which is not the active one</source>
        <translation>die Datei wurde mit dem Modul „%1“ gespeichert, das nicht das aktive ist</translation>
    </message>
    <message>
        <source>File &apos;%1&apos; is either invalid or you do not have the corresponding Module installed.</source>
        <translation>Die Datei „%1“ ist entweder ungültig, oder das zugehörige Modul ist nicht installiert.</translation>
    </message>
    <message>
        <source>Korvane Map Files (*.krf, *.cmf)</source>
        <translation>Korvane-Kartendateien (*.krf, *.cmf)</translation>
    </message>
    <message>
        <source>Legacy Korvane Map Files</source>
        <translation>Ältere Korvane-Kartendateien</translation>
    </message>
</context>
<context>
    <name>CRecordReader</name>
    <message>
        <source>arrow</source>
        <translation>Pfeil</translation>
    </message>
    <message>
        <source>game</source>
        <translation>Spiel</translation>
    </message>
    <message>
        <source>map groups</source>
        <translation>Archive</translation>
    </message>
    <message>
        <source>maps</source>
        <translation>Karten</translation>
    </message>
    <message>
        <source>units</source>
        <translation>Spielsteine</translation>
    </message>
    <message>
        <source>arrows</source>
        <translation>Pfeile</translation>
    </message>
    <message>
        <source>map</source>
        <translation>Karte</translation>
    </message>
    <message>
        <source>map group</source>
        <translation>Archiv</translation>
    </message>
    <message>
        <source>unit</source>
        <translation>Spielstein</translation>
    </message>
    <message>
        <source>The data ends in the middle of a record: the file is truncated or damaged</source>
        <translation>Die Daten enden mitten in einem Datensatz: Die Datei ist abgeschnitten oder beschädigt</translation>
    </message>
    <message>
        <source>A text of negative length (%1) was found: the file is damaged</source>
        <translation>Ein Text mit negativer Länge (%1) wurde gefunden: Die Datei ist beschädigt</translation>
    </message>
    <message>
        <source>The %1 record has version %2, which this program does not know: it was written by a newer version of Korvane</source>
        <translation>Der Datensatz „%1“ hat die Version %2, die dieses Programm nicht kennt: Er wurde von einer neueren Version von Korvane geschrieben</translation>
    </message>
    <message>
        <source>The %1 record has the invalid version %2: the file is damaged</source>
        <translation>Der Datensatz „%1“ hat die ungültige Version %2: Die Datei ist beschädigt</translation>
    </message>
    <message>
        <source>A negative number of %1 (%2) was found: the file is damaged</source>
        <translation>Eine negative Anzahl %1 (%2) wurde gefunden: Die Datei ist beschädigt</translation>
    </message>
    <message>
        <source>The data claims %1 %2, more than the remaining %3 bytes can hold: the file is damaged</source>
        <translation>Die Daten geben %1 %2 an, mehr als die verbleibenden %3 Bytes fassen können: Die Datei ist beschädigt</translation>
    </message>
</context>
<context>
    <name>CRecoveryMgr</name>
    <message>
        <source>Restore unsaved changes to &apos;%1&apos; from %2?</source>
        <translation>Nicht gespeicherte Änderungen an „%1“ vom %2 wiederherstellen?</translation>
    </message>
    <message>
        <source>The unsaved changes cannot be restored: the game module &apos;%1&apos; is not installed.</source>
        <translation>Die nicht gespeicherten Änderungen können nicht wiederhergestellt werden: Das Modul „%1“ ist nicht installiert.</translation>
    </message>
</context>
<context>
    <name>CResFileMgr</name>
    <message>
        <source>Cannot open the pack %1: %2</source>
        <translation>Das Paket %1 kann nicht geöffnet werden: %2</translation>
    </message>
    <message>
        <source>The pack %1 is larger than 2 GB</source>
        <translation>Das Paket %1 ist größer als 2 GB</translation>
    </message>
    <message>
        <source>The pack %1 is shorter than its header</source>
        <translation>Das Paket %1 ist kürzer als sein Dateikopf</translation>
    </message>
    <message>
        <source>Cannot read the header of %1</source>
        <translation>Der Dateikopf von %1 kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>The directory of %1 (%2 bytes) does not fit in the file</source>
        <translation>Das Verzeichnis von %1 (%2 Bytes) passt nicht in die Datei</translation>
    </message>
    <message>
        <source>The directory of %1 claims an impossible length of %2 bytes</source>
        <translation>Das Verzeichnis von %1 gibt eine unmögliche Länge von %2 Bytes an</translation>
    </message>
    <message>
        <source>The directory of %1 is damaged</source>
        <translation>Das Verzeichnis von %1 ist beschädigt</translation>
    </message>
    <message>
        <source>The directory of %1 claims an impossible entry count of %2</source>
        <translation>Das Verzeichnis von %1 gibt eine unmögliche Zahl von %2 Einträgen an</translation>
    </message>
    <message>
        <source>The directory of %1 ends inside entry %2</source>
        <translation>Das Verzeichnis von %1 endet mitten im Eintrag %2</translation>
    </message>
    <message>
        <source>Entry %1 of %2 has a name that leads out of any folder it is unpacked to</source>
        <translation>Der Eintrag %1 von %2 hat einen Namen, der aus jedem Ordner hinausführt, in den er entpackt wird</translation>
    </message>
    <message>
        <source>Entry %1 of %2 has an impossible length</source>
        <translation>Der Eintrag %1 von %2 hat eine unmögliche Länge</translation>
    </message>
    <message>
        <source>Entry %1 of %2 points outside the file</source>
        <translation>Der Eintrag %1 von %2 zeigt aus der Datei hinaus</translation>
    </message>
    <message>
        <source>a name a pack may not hold</source>
        <translation>ein Name, den ein Paket nicht enthalten darf</translation>
    </message>
    <message>
        <source>a second entry of that name (the first is used)</source>
        <translation>ein zweiter Eintrag dieses Namens (der erste wird verwendet)</translation>
    </message>
    <message>
        <source>The pack %1 has no entry %2</source>
        <translation>Das Paket %1 hat keinen Eintrag %2</translation>
    </message>
    <message>
        <source>Cannot read the pack %1</source>
        <translation>Das Paket %1 kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>The pack %1 ends inside entry %2</source>
        <translation>Das Paket %1 endet mitten im Eintrag %2</translation>
    </message>
    <message>
        <source>Entry %1 of %2 is damaged</source>
        <translation>Der Eintrag %1 von %2 ist beschädigt</translation>
    </message>
    <message>
        <source>Entry %1 of %2 is not a picture: %3</source>
        <translation>Der Eintrag %1 von %2 ist kein Bild: %3</translation>
    </message>
    <message>
        <source>No place was given for the copy of %1</source>
        <translation>Für die Kopie von %1 wurde kein Ort angegeben</translation>
    </message>
    <message>
        <source>Cannot create the cache directory %1</source>
        <translation>Der Zwischenspeicher-Ordner %1 kann nicht angelegt werden</translation>
    </message>
    <message>
        <source>Cannot write the cache file %1: %2</source>
        <translation>Die Zwischenspeicher-Datei %1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>it cannot be renamed into place</source>
        <translation>die Datei kann nicht an ihren Platz umbenannt werden</translation>
    </message>
    <message>
        <source>Cannot copy %1 to %2</source>
        <translation>%1 kann nicht nach %2 kopiert werden</translation>
    </message>
</context>
<context>
    <name>CReviewWindows</name>
    <message>
        <source>Show maps</source>
        <translation>Karten zeigen</translation>
    </message>
</context>
<context>
    <name>CStandardGame</name>
    <message>
        <source>The module file %1 has no usable module.def: %2</source>
        <translation>Die Moduldatei %1 hat keine brauchbare module.def: %2</translation>
    </message>
    <message>
        <source>nothing was given</source>
        <translation>es wurde nichts angegeben</translation>
    </message>
    <message>
        <source>The context %1 was activated before it was initialised</source>
        <translation>Das Modul %1 wurde aktiviert, bevor es eingerichtet war</translation>
    </message>
    <message>
        <source>Loading the &apos;%1&apos; Module...</source>
        <translation>Modul „%1“ wird geladen...</translation>
    </message>
    <message>
        <source>The module %1 cannot be loaded: %2</source>
        <translation>Das Modul %1 kann nicht geladen werden: %2</translation>
    </message>
    <message>
        <source>The module %1 has more tokens than a game can keep</source>
        <translation>Das Modul %1 hat mehr Spielsteine, als ein Spiel aufnehmen kann</translation>
    </message>
    <message>
        <source>Loading the Map...</source>
        <translation>Karte wird geladen...</translation>
    </message>
    <message>
        <source>The board picture %1 of the module %2 cannot be read: %3</source>
        <translation>Das Spielfeldbild %1 des Moduls %2 kann nicht gelesen werden: %3</translation>
    </message>
    <message>
        <source>Loading Token %1 of %2...</source>
        <translation>Spielstein %1 von %2 wird geladen...</translation>
    </message>
    <message>
        <source>The module %1 must be active to create a game</source>
        <translation>Das Modul %1 muss aktiv sein, um ein Spiel zu erstellen</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>The initial game %1 of the module %2 cannot be read: %3</source>
        <translation>Das Anfangsspiel %1 des Moduls %2 kann nicht gelesen werden: %3</translation>
    </message>
    <message>
        <source>The initial game %1 of the module %2 holds no map</source>
        <translation>Das Anfangsspiel %1 des Moduls %2 enthält keine Karte</translation>
    </message>
</context>
<context>
    <name>CTokenBase</name>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Add 1</source>
        <translation>1 &amp;hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Subtract 1</source>
        <translation>1 &amp;abziehen</translation>
    </message>
    <message>
        <source>Split Off &amp;1</source>
        <translation>&amp;1 abteilen</translation>
    </message>
    <message>
        <source>Split Off &amp;2 </source>
        <translation>&amp;2 abteilen </translation>
    </message>
    <message>
        <source>Split Off &amp;5</source>
        <translation>&amp;5 abteilen</translation>
    </message>
    <message>
        <source>Split Off 1&amp;0</source>
        <translation>1&amp;0 abteilen</translation>
    </message>
    <message>
        <source>&amp;Custom Split</source>
        <translation>&amp;Frei teilen</translation>
    </message>
    <message>
        <source>Toggle &amp;Moved</source>
        <translation>Bewegt-&amp;Markierung umschalten</translation>
    </message>
</context>
<context>
    <name>CToolsMenu</name>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Extras</translation>
    </message>
    <message>
        <source>&amp;Install Module...</source>
        <translation>Modul &amp;installieren...</translation>
    </message>
</context>
<context>
    <name>CUserDefinedGame</name>
    <message>
        <source>Custom Korvane Map Files</source>
        <translation>Eigene Korvane-Kartendateien</translation>
    </message>
</context>
<context>
    <name>CViewMenu</name>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Map Text</source>
        <translation>Karten&amp;text</translation>
    </message>
    <message>
        <source>&amp;Full Screen...</source>
        <translation>&amp;Vollbild...</translation>
    </message>
    <message>
        <source>Archi&amp;ve</source>
        <translation>&amp;Archiv</translation>
    </message>
    <message>
        <source>&amp;Current</source>
        <translation>&amp;Aktuelles Archiv</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Ver&amp;größern</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>&amp;Actual Size</source>
        <translation>&amp;Originalgröße</translation>
    </message>
    <message>
        <source>Fit to &amp;Window</source>
        <translation>An &amp;Fenster anpassen</translation>
    </message>
    <message>
        <source>&amp;Previous Map</source>
        <translation>Vo&amp;rherige Karte</translation>
    </message>
    <message>
        <source>&amp;Next Map</source>
        <translation>&amp;Nächste Karte</translation>
    </message>
    <message>
        <source>F&amp;irst Map</source>
        <translation>&amp;Erste Karte</translation>
    </message>
    <message>
        <source>&amp;Last Map</source>
        <translation>&amp;Letzte Karte</translation>
    </message>
    <message>
        <source>&amp;%1.  &apos;%2&apos;  to  &apos;%3&apos;</source>
        <translation>&amp;%1.  „%2“  bis  „%3“</translation>
    </message>
    <message>
        <source>&amp;%1.  &apos;%2&apos;</source>
        <translation>&amp;%1.  „%2“</translation>
    </message>
    <message>
        <source>Show &amp;Changes</source>
        <translation>Änderungen &amp;zeigen</translation>
    </message>
    <message>
        <source>Compare &amp;With...</source>
        <translation>Vergleichen &amp;mit...</translation>
    </message>
    <message>
        <source>&amp;Replay Changes</source>
        <translation>Änderungen nach&amp;spielen</translation>
    </message>
</context>
<context>
    <name>IAction</name>
    <message>
        <source>The arrow &quot;%1&quot; is not part of the active game module</source>
        <translation>Der Pfeil „%1“ gehört nicht zum aktiven Modul</translation>
    </message>
    <message>
        <source>The arrow %1 is not on map %2</source>
        <translation>Der Pfeil %1 ist nicht auf der Karte %2</translation>
    </message>
    <message>
        <source>Place New Arrow</source>
        <translation>Neuen Pfeil setzen</translation>
    </message>
    <message>
        <source>The counter &quot;%1&quot; is not part of the active game module</source>
        <translation>Der Spielstein „%1“ gehört nicht zum aktiven Modul</translation>
    </message>
    <message>
        <source>The unit %1 is not on map %2</source>
        <translation>Der Spielstein %1 ist nicht auf der Karte %2</translation>
    </message>
    <message>
        <source>Place New Unit</source>
        <translation>Neuen Spielstein setzen</translation>
    </message>
    <message>
        <source>Clear All Arrows</source>
        <translation>Alle Pfeile entfernen</translation>
    </message>
    <message>
        <source>No arrow to delete</source>
        <translation>Kein Pfeil zum Löschen</translation>
    </message>
    <message>
        <source>Delete Arrow</source>
        <translation>Pfeil löschen</translation>
    </message>
    <message>
        <source>No unit to delete</source>
        <translation>Kein Spielstein zum Löschen</translation>
    </message>
    <message>
        <source>No unit to restore</source>
        <translation>Kein Spielstein zum Wiederherstellen</translation>
    </message>
    <message>
        <source>Delete Unit</source>
        <translation>Spielstein löschen</translation>
    </message>
    <message>
        <source>Edit Game Properties</source>
        <translation>Spieleigenschaften bearbeiten</translation>
    </message>
    <message>
        <source>Edit Map Properties</source>
        <translation>Karteneigenschaften bearbeiten</translation>
    </message>
    <message>
        <source>Edit Map Text</source>
        <translation>Kartentext bearbeiten</translation>
    </message>
    <message>
        <source>Edit Unit</source>
        <translation>Spielstein bearbeiten</translation>
    </message>
    <message>
        <source>There is no open game to change</source>
        <translation>Es ist kein Spiel zum Ändern geöffnet</translation>
    </message>
    <message>
        <source>The map %1 is not part of the open game</source>
        <translation>Die Karte %1 gehört nicht zum geöffneten Spiel</translation>
    </message>
    <message>
        <source>The units of map %1 are not loaded</source>
        <translation>Die Spielsteine der Karte %1 sind nicht geladen</translation>
    </message>
    <message>
        <source>The arrows of map %1 are not loaded</source>
        <translation>Die Pfeile der Karte %1 sind nicht geladen</translation>
    </message>
    <message>
        <source>Move Arrow</source>
        <translation>Pfeil bewegen</translation>
    </message>
    <message>
        <source>Move Unit</source>
        <translation>Spielstein bewegen</translation>
    </message>
    <message>
        <source>The game has no archive to add a map to</source>
        <translation>Das Spiel hat kein Archiv, dem eine Karte hinzugefügt werden kann</translation>
    </message>
    <message>
        <source>New Map</source>
        <translation>Neue Karte</translation>
    </message>
    <message>
        <source>Reset Moved</source>
        <translation>Bewegt-Markierungen zurücksetzen</translation>
    </message>
    <message>
        <source>Clear All Arro&amp;ws</source>
        <translation>Alle &amp;Pfeile entfernen</translation>
    </message>
    <message>
        <source>Reset &amp;Moved</source>
        <translation>&amp;Bewegt-Markierungen zurücksetzen</translation>
    </message>
    <message>
        <source>Split Off %1</source>
        <translation>%1 abteilen</translation>
    </message>
    <message>
        <source>Merge Units</source>
        <translation>Spielsteine zusammenlegen</translation>
    </message>
    <message>
        <source>Tear Off %1</source>
        <translation>%1 abtrennen</translation>
    </message>
    <message>
        <source>The map &apos;%1&apos; cannot be removed</source>
        <translation>Die Karte „%1“ kann nicht entfernt werden</translation>
    </message>
    <message>
        <source>Remove Map</source>
        <translation>Karte entfernen</translation>
    </message>
</context>
<context>
    <name>MMain</name>
    <message>
        <source>The module &apos;%1&apos; cannot be loaded.

%2</source>
        <translation>Das Modul „%1“ kann nicht geladen werden.

%2</translation>
    </message>
</context>
<context>
    <name>UDialogButtons</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>UTokenPalette</name>
    <message>
        <source>Counters</source>
        <translation>Spielsteine</translation>
    </message>
</context>
<context>
    <name>frmChanges</name>
    <message>
        <source>Changes</source>
        <translation>Änderungen</translation>
    </message>
    <message>
        <source>Turn on View &gt; Show Changes to list what changed since the map before.</source>
        <translation>Schalten Sie Ansicht &gt; Änderungen zeigen ein, um aufzulisten, was sich seit der vorigen Karte geändert hat.</translation>
    </message>
    <message>
        <source>This is the game&apos;s first map: there is no map before it.</source>
        <translation>Dies ist die erste Karte des Spiels: Es gibt keine Karte davor.</translation>
    </message>
</context>
<context>
    <name>frmCompareWith</name>
    <message>
        <source>Compare With</source>
        <translation>Vergleichen mit</translation>
    </message>
    <message>
        <source>Show the changes since this map:</source>
        <translation>Die Änderungen seit dieser Karte zeigen:</translation>
    </message>
    <message>
        <source>Archive %1</source>
        <translation>Archiv %1</translation>
    </message>
</context>
<context>
    <name>frmEditNumUnit</name>
    <message>
        <source>Edit Value</source>
        <translation>Wert bearbeiten</translation>
    </message>
    <message>
        <source>&amp;New value:</source>
        <translation>&amp;Neuer Wert:</translation>
    </message>
</context>
<context>
    <name>frmEditTextUnit</name>
    <message>
        <source>Text cannot be blank.</source>
        <translation>Der Text darf nicht leer sein.</translation>
    </message>
    <message>
        <source>Edit Text</source>
        <translation>Text bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Text:</source>
        <translation>&amp;Text:</translation>
    </message>
    <message>
        <source>&amp;Details:</source>
        <translation>&amp;Details:</translation>
    </message>
</context>
<context>
    <name>frmFileComparison</name>
    <message>
        <source>Compare With File</source>
        <translation>Mit Datei vergleichen</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Karte</translation>
    </message>
    <message>
        <source>Compared</source>
        <translation>Vergleich</translation>
    </message>
    <message>
        <source>The open game compared with %1, map by map (archive and position).</source>
        <translation>Das geöffnete Spiel im Vergleich mit %1, Karte für Karte (Archiv und Position).</translation>
    </message>
    <message>
        <source>same</source>
        <translation>gleich</translation>
    </message>
    <message>
        <source>changed: %1</source>
        <translation>geändert: %1</translation>
    </message>
    <message>
        <source>only in the open game</source>
        <translation>nur im geöffneten Spiel</translation>
    </message>
    <message>
        <source>only in %1</source>
        <translation>nur in %1</translation>
    </message>
    <message>
        <source>Archive %1, map %2: %3</source>
        <translation>Archiv %1, Karte %2: %3</translation>
    </message>
</context>
<context>
    <name>frmGameProps</name>
    <message>
        <source>Game Properties</source>
        <translation>Spieleigenschaften</translation>
    </message>
</context>
<context>
    <name>frmMapProps</name>
    <message>
        <source>Map Properties</source>
        <translation>Karteneigenschaften</translation>
    </message>
    <message>
        <source>&amp;Protected (no changes to this map)</source>
        <translation>&amp;Geschützt (keine Änderungen an dieser Karte)</translation>
    </message>
</context>
<context>
    <name>frmMapText</name>
    <message>
        <source>Map Text</source>
        <translation>Kartentext</translation>
    </message>
</context>
<context>
    <name>frmNameDialog</name>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>&amp;Remarks:</source>
        <translation>&amp;Bemerkungen:</translation>
    </message>
</context>
<context>
    <name>frmNewGame</name>
    <message>
        <source>New Game</source>
        <translation>Neues Spiel</translation>
    </message>
    <message>
        <source>&amp;Game:</source>
        <translation>&amp;Spiel:</translation>
    </message>
</context>
<context>
    <name>frmNewMap</name>
    <message>
        <source>Add Map</source>
        <translation>Karte hinzufügen</translation>
    </message>
</context>
<context>
    <name>frmProgress</name>
    <message>
        <source>Please Wait...</source>
        <translation>Bitte warten...</translation>
    </message>
</context>
<context>
    <name>frmSplash</name>
    <message>
        <source>Korvane is free software: you can redistribute it and/or modify it under the terms of the GNU General Public License as published by the Free Software Foundation, either version 3 of the License, or (at your option) any later version.

Korvane is distributed in the hope that it will be useful, but WITHOUT ANY WARRANTY; without even the implied warranty of MERCHANTABILITY or FITNESS FOR A PARTICULAR PURPOSE. See the GNU General Public License for more details.

Qt is used under the GNU Lesser General Public License version 3, zlib under the zlib licence and libxml2 under the MIT licence.</source>
        <translation>Korvane ist freie Software: Sie können es unter den Bedingungen der GNU General Public License, wie von der Free Software Foundation veröffentlicht, weitergeben und/oder verändern, entweder gemäß Version 3 der Lizenz oder (nach Ihrer Wahl) jeder neueren Version.

Korvane wird in der Hoffnung verbreitet, dass es nützlich ist, aber OHNE JEDE GEWÄHRLEISTUNG; sogar ohne die implizite Gewährleistung der MARKTFÄHIGKEIT oder EIGNUNG FÜR EINEN BESTIMMTEN ZWECK. Einzelheiten finden Sie in der GNU General Public License.

Qt wird unter der GNU Lesser General Public License Version 3 verwendet, zlib unter der zlib-Lizenz und libxml2 unter der MIT-Lizenz.</translation>
    </message>
    <message>
        <source>About Korvane</source>
        <translation>Über Korvane</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Maps and counters for board games played by mail</source>
        <translation>Karten und Spielsteine für Brettspiele per Post</translation>
    </message>
    <message>
        <source>Built with %1.</source>
        <translation>Erstellt mit %1.</translation>
    </message>
</context>
<context>
    <name>frmSplitUnit</name>
    <message>
        <source>Split Stack</source>
        <translation>Stapel teilen</translation>
    </message>
    <message>
        <source>Stack count:</source>
        <translation>Stapelgröße:</translation>
    </message>
    <message>
        <source>&amp;Split off:</source>
        <translation>&amp;Abteilen:</translation>
    </message>
</context>
<context>
    <name>mdcBoard</name>
    <message>
        <source>No game is open.

Start one with File &gt; New Game (%1)
or continue one with File &gt; Open Game (%2).</source>
        <translation>Es ist kein Spiel geöffnet.

Beginnen Sie eines mit Datei &gt; Neues Spiel (%1)
oder setzen Sie eines fort mit Datei &gt; Spiel öffnen (%2).</translation>
    </message>
</context>
<context>
    <name>mdiMain</name>
    <message>
        <source>Untitled</source>
        <translation>Unbenannt</translation>
    </message>
</context>
</TS>
