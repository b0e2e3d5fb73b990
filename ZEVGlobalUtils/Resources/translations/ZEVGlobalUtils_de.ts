<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>ZEVGlobalUtils</name>
    <message>
        <source>Wildcard</source>
        <translation>Platzhalter</translation>
    </message>
    <message>
        <source>Any Characters</source>
        <translation>Beliebige Zeichen</translation>
    </message>
    <message>
        <source>Any Character</source>
        <translation>Beliebiges Zeichen</translation>
    </message>
    <message>
        <source>Any Word</source>
        <translation>Beliebiges Wort</translation>
    </message>
    <message>
        <source>White Space</source>
        <translation>Leerraum</translation>
    </message>
    <message>
        <source>Digits</source>
        <translation>Ziffern</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tabulator</translation>
    </message>
    <message>
        <source>Email Address</source>
        <translation>E-Mail-Adresse</translation>
    </message>
    <message>
        <source>Web Address</source>
        <translation>Webadresse</translation>
    </message>
    <message>
        <source>Line Break</source>
        <translation>Zeilenumbruch</translation>
    </message>
    <message>
        <source>Any</source>
        <translation>Beliebig</translation>
    </message>
    <message>
        <source>Char</source>
        <translation>Zeichen</translation>
    </message>
    <message>
        <source>Word</source>
        <translation>Wort</translation>
    </message>
    <message>
        <source>Wildcards</source>
        <translation>Platzhalter</translation>
    </message>
    <message>
        <source>Contains</source>
        <translation>Enthält</translation>
    </message>
    <message>
        <source>Begins With</source>
        <translation>Beginnt mit</translation>
    </message>
    <message>
        <source>Matches Word</source>
        <translation>Ganzes Wort</translation>
    </message>
    <message>
        <source>Ends With</source>
        <translation>Endet mit</translation>
    </message>
    <message>
        <source>Regular Expression</source>
        <translation>Regulärer Ausdruck</translation>
    </message>
    <message>
        <source>Matches Contents</source>
        <translation>Ganzer Inhalt</translation>
    </message>
    <message>
        <source>Case Sensitive</source>
        <translation>Groß-/Kleinschreibung beachten</translation>
    </message>
    <message>
        <source>The operation couldn’t be completed. (%1 error %2.)</source>
        <translation>Der Vorgang konnte nicht abgeschlossen werden. (%1, Fehler %2)</translation>
    </message>
    <message>
        <source>The expression “%1” is not valid: %2.</source>
        <translation>Der Ausdruck „%1“ ist nicht gültig: %2.</translation>
    </message>
    <message>
        <source>(Character %1)</source>
        <translation>(Zeichen %1)</translation>
    </message>
    <message>
        <source>a backslash stands before a character that it does not go with</source>
        <translation>ein umgekehrter Schrägstrich steht vor einem Zeichen, zu dem er nicht passt</translation>
    </message>
    <message>
        <source>a parenthesis has no partner</source>
        <translation>einer runden Klammer fehlt ihr Gegenstück</translation>
    </message>
    <message>
        <source>a bracket is not closed</source>
        <translation>eine eckige Klammer ist nicht geschlossen</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>er ist zu groß</translation>
    </message>
    <message>
        <source>a repetition in braces is not well formed</source>
        <translation>eine Wiederholung in geschweiften Klammern ist nicht richtig gebildet</translation>
    </message>
    <message>
        <source>it refers to a group that it does not have</source>
        <translation>er verweist auf eine Gruppe, die es nicht gibt</translation>
    </message>
    <message>
        <source>a look-behind has no limit to its length</source>
        <translation>die Länge eines Rückblicks ist nicht begrenzt</translation>
    </message>
    <message>
        <source>a range of characters runs backwards</source>
        <translation>ein Zeichenbereich läuft rückwärts</translation>
    </message>
    <message>
        <source>it is not well formed</source>
        <translation>er ist nicht richtig gebildet</translation>
    </message>
    <message>
        <source>Zero KB</source>
        <translation>Null KB</translation>
    </message>
    <message>
        <source>1 byte</source>
        <translation>1 Byte</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 Bytes</translation>
    </message>
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
        <source>%1 TB</source>
        <translation>%1 TB</translation>
    </message>
    <message>
        <source>%1 PB</source>
        <translation>%1 PB</translation>
    </message>
    <message>
        <source>%1 EB</source>
        <translation>%1 EB</translation>
    </message>
    <message>
        <source>Unknown Type (0x%x)</source>
        <translation>Unbekannter Typ (0x%x)</translation>
    </message>
    <message>
        <source>The image “%1” could not be written: %2.</source>
        <translation>Das Bild „%1“ konnte nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>%lu matches</source>
        <translation>%lu Treffer</translation>
    </message>
    <message>
        <source>%d Results Found</source>
        <translation>%d Ergebnisse gefunden</translation>
    </message>
    <message>
        <source>“%1” is not a whole number.</source>
        <translation>„%1“ ist keine ganze Zahl.</translation>
    </message>
    <message>
        <source>The number is too small.</source>
        <translation>Die Zahl ist zu klein.</translation>
    </message>
    <message>
        <source>The number is too large.</source>
        <translation>Die Zahl ist zu groß.</translation>
    </message>
    <message>
        <source>Insert Pattern</source>
        <translation>Muster einfügen</translation>
    </message>
    <message>
        <source>Saved Patterns</source>
        <translation>Gespeicherte Muster</translation>
    </message>
    <message>
        <source>Remove From Saved</source>
        <translation>Aus den gespeicherten entfernen</translation>
    </message>
    <message>
        <source>Save Current</source>
        <translation>Aktuelles speichern</translation>
    </message>
    <message>
        <source>Show Menu</source>
        <translation>Menü anzeigen</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>No Results</source>
        <translation>Keine Ergebnisse</translation>
    </message>
    <message>
        <source>&amp;Find:</source>
        <translation>&amp;Suchen:</translation>
    </message>
    <message>
        <source>Find Menu</source>
        <translation>Menü für Suchmuster</translation>
    </message>
    <message>
        <source>Saved queries</source>
        <translation>Gespeicherte Suchen</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Replace &amp;with:</source>
        <translation>Ersetzen &amp;durch:</translation>
    </message>
    <message>
        <source>Replace Menu</source>
        <translation>Menü für Ersatzmuster</translation>
    </message>
    <message>
        <source>Saved patterns</source>
        <translation>Gespeicherte Muster</translation>
    </message>
    <message>
        <source>Replace With</source>
        <translation>Ersetzen durch</translation>
    </message>
    <message>
        <source>Matching Type</source>
        <translation>Art der Übereinstimmung</translation>
    </message>
    <message>
        <source>&amp;Case Sensitive</source>
        <translation>&amp;Groß-/Kleinschreibung beachten</translation>
    </message>
    <message>
        <source>Replace A&amp;ll</source>
        <translation>&amp;Alle ersetzen</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Ersetzen</translation>
    </message>
    <message>
        <source>&amp;Previous</source>
        <translation>&amp;Vorheriger</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Nächster</translation>
    </message>
    <message>
        <source>F&amp;ind</source>
        <translation>S&amp;uchen</translation>
    </message>
    <message>
        <source>Saved patterns and options</source>
        <translation>Gespeicherte Muster und Optionen</translation>
    </message>
    <message>
        <source>Previous Match</source>
        <translation>Vorheriger Treffer</translation>
    </message>
    <message>
        <source>Next Match</source>
        <translation>Nächster Treffer</translation>
    </message>
    <message>
        <source>&amp;Done</source>
        <translation>&amp;Fertig</translation>
    </message>
    <message>
        <source>Replace and Fi&amp;nd</source>
        <translation>Ersetzen und weiter&amp;suchen</translation>
    </message>
    <message>
        <source>Find &amp; Replace</source>
        <translation>Suchen &amp; ersetzen</translation>
    </message>
    <message>
        <source>Wrap Around</source>
        <translation>Am Ende von vorn beginnen</translation>
    </message>
    <message>
        <source>Saved Queries</source>
        <translation>Gespeicherte Suchen</translation>
    </message>
    <message>
        <source>Save Query</source>
        <translation>Suche speichern</translation>
    </message>
    <message>
        <source>The search was too complex: matches are missing.</source>
        <translation>Die Suche war zu aufwendig: Es fehlen Treffer.</translation>
    </message>
    <message>
        <source>Searching… Press Escape to stop.</source>
        <translation>Suche läuft … Escape bricht sie ab.</translation>
    </message>
    <message>
        <source>The search was stopped: matches may be missing.</source>
        <translation>Die Suche wurde abgebrochen: Es können Treffer fehlen.</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>Replace All</source>
        <translation>Alle ersetzen</translation>
    </message>
    <message>
        <source>&amp;Find…</source>
        <translation>&amp;Suchen …</translation>
    </message>
    <message>
        <source>Find and &amp;Replace…</source>
        <translation>Suchen und &amp;ersetzen …</translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation>&amp;Weitersuchen</translation>
    </message>
    <message>
        <source>Find &amp;Previous</source>
        <translation>Rückwär&amp;ts suchen</translation>
    </message>
    <message>
        <source>Use &amp;Selection for Find</source>
        <translation>Auswahl zum Suchen &amp;verwenden</translation>
    </message>
    <message>
        <source>the folder “%1” does not exist</source>
        <translation>den Ordner „%1“ gibt es nicht</translation>
    </message>
    <message>
        <source>“%1” is not a folder</source>
        <translation>„%1“ ist kein Ordner</translation>
    </message>
    <message>
        <source>you do not have permission to change the folder “%1”</source>
        <translation>die Berechtigung zum Ändern des Ordners „%1“ fehlt</translation>
    </message>
    <message>
        <source>you do not have permission to read “%1”</source>
        <translation>die Berechtigung zum Lesen von „%1“ fehlt</translation>
    </message>
    <message>
        <source>“%1” may not be removed from where it is</source>
        <translation>„%1“ darf dort, wo es ist, nicht entfernt werden</translation>
    </message>
    <message>
        <source>a folder cannot be put into itself</source>
        <translation>ein Ordner kann nicht in sich selbst gelegt werden</translation>
    </message>
    <message>
        <source>it lies in the folder “%1”, whose place it would take</source>
        <translation>es liegt in dem Ordner „%1“, dessen Platz es einnehmen würde</translation>
    </message>
    <message>
        <source>the volume does not allow the name “%1”</source>
        <translation>der Datenträger lässt den Namen „%1“ nicht zu</translation>
    </message>
    <message>
        <source>the volume takes “%1” for the name of another item in the same folder</source>
        <translation>der Datenträger hält „%1“ für den Namen eines anderen Objekts im selben Ordner</translation>
    </message>
    <message>
        <source>“%1” has more attributes than the volume can keep</source>
        <translation>„%1“ hat mehr Attribute, als der Datenträger aufbewahren kann</translation>
    </message>
    <message>
        <source>“%1” is a socket or a device</source>
        <translation>„%1“ ist ein Socket oder ein Gerät</translation>
    </message>
    <message>
        <source>“%1” is a link or a pipe, which the volume does not have</source>
        <translation>„%1“ ist ein Verweis oder eine Pipe, die der Datenträger nicht kennt</translation>
    </message>
    <message>
        <source>others could read “%1” on the volume, which keeps no permissions</source>
        <translation>andere könnten „%1“ auf dem Datenträger lesen, der keine Berechtigungen aufbewahrt</translation>
    </message>
    <message>
        <source>“%1” has changed meanwhile, and was kept</source>
        <translation>„%1“ hat sich inzwischen geändert und wurde behalten</translation>
    </message>
    <message>
        <source>“%1”: %2</source>
        <translation>„%1“: %2</translation>
    </message>
    <message>
        <source>the item does not exist</source>
        <translation>das Objekt gibt es nicht</translation>
    </message>
    <message>
        <source>you do not have permission</source>
        <translation>die Berechtigung fehlt</translation>
    </message>
    <message>
        <source>an item with this name already exists</source>
        <translation>ein Objekt mit diesem Namen ist schon vorhanden</translation>
    </message>
    <message>
        <source>there is not enough room</source>
        <translation>es ist nicht genug Platz</translation>
    </message>
    <message>
        <source>the volume can only be read</source>
        <translation>der Datenträger kann nur gelesen werden</translation>
    </message>
    <message>
        <source>it was cancelled</source>
        <translation>der Vorgang wurde abgebrochen</translation>
    </message>
    <message>
        <source>“%1” could not be moved: %2.</source>
        <translation>„%1“ konnte nicht verschoben werden: %2.</translation>
    </message>
    <message>
        <source>“%1” could not be copied: %2.</source>
        <translation>„%1“ konnte nicht kopiert werden: %2.</translation>
    </message>
    <message>
        <source>“%1” could not be changed: %2.</source>
        <translation>„%1“ konnte nicht geändert werden: %2.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Apply to All</source>
        <translation>Auf alle anwenden</translation>
    </message>
    <message>
        <source>Allow Access</source>
        <translation>Zugriff erlauben</translation>
    </message>
    <message>
        <source>-SandboxExceptionKey-</source>
        <translation>Um mit den Dateien in diesem Ordner zu arbeiten, wird Zugriff auf ihn benötigt. Wählen Sie ihn aus, um ihn zu erlauben.</translation>
    </message>
    <message>
        <source>-SandboxSuggestion-</source>
        <translation>Wenn Sie stattdessen Ihren persönlichen Ordner wählen, müssen Sie für die Ordner darin nicht noch einmal gefragt werden.</translation>
    </message>
    <message>
        <source>Keep Both</source>
        <translation>Beide behalten</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Überspringen</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>An item named “%@” already exists in this location.</source>
        <translation>An diesem Ort ist schon ein Objekt mit dem Namen „%@“ vorhanden.</translation>
    </message>
    <message>
        <source>Do you want to replace it with the one you’re moving?</source>
        <translation>Möchten Sie es durch das Objekt ersetzen, das Sie verschieben?</translation>
    </message>
    <message>
        <source>Existing item:</source>
        <translation>Vorhandenes Objekt:</translation>
    </message>
    <message>
        <source>New item:</source>
        <translation>Neues Objekt:</translation>
    </message>
    <message>
        <source>Drop Image Here</source>
        <translation>Bild hierher ziehen</translation>
    </message>
    <message>
        <source>Artwork</source>
        <translation>Cover</translation>
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
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Reading the image</source>
        <translation>Bild wird gelesen</translation>
    </message>
    <message>
        <source>Show more</source>
        <translation>Mehr anzeigen</translation>
    </message>
    <message>
        <source>Last Used</source>
        <translation>Zuletzt benutzt</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Auswählen …</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>Clear Recents</source>
        <translation>Liste leeren</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Choose an Application</source>
        <translation>Programm auswählen</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>Programme</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Other…</source>
        <translation>Anderes …</translation>
    </message>
    <message>
        <source>animated</source>
        <translation>animiert</translation>
    </message>
    <message>
        <source>no known image format</source>
        <translation>kein bekanntes Bildformat</translation>
    </message>
    <message>
        <source>no decoder for %1</source>
        <translation>kein Decoder für %1</translation>
    </message>
    <message>
        <source>damaged</source>
        <translation>beschädigt</translation>
    </message>
    <message>
        <source>too large to be shown</source>
        <translation>zu groß, um gezeigt zu werden</translation>
    </message>
</context>
</TS>
