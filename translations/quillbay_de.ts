<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>CountingReason</name>
    <message>
        <source>a word has at least one letter, digit or ideograph</source>
        <translation>ein Wort hat mindestens einen Buchstaben, eine Ziffer oder ein Schriftzeichen</translation>
    </message>
    <message>
        <source>in American English, a single character other than A, I, O and X is no word</source>
        <translation>im amerikanischen Englisch ist ein einzelnes Zeichen außer A, I, O und X kein Wort</translation>
    </message>
    <message>
        <source>there is no letter, digit or ideograph in it</source>
        <translation>es enthält keinen Buchstaben, keine Ziffer und kein Schriftzeichen</translation>
    </message>
    <message>
        <source>everything but white space counts, in UTF-16 code units</source>
        <translation>alles außer Leerraum zählt, in UTF-16-Codeeinheiten</translation>
    </message>
    <message>
        <source>spaces, tabs and line ends are white space</source>
        <translation>Leerzeichen, Tabulatoren und Zeilenenden sind Leerraum</translation>
    </message>
    <message>
        <source>every character counts, in UTF-16 code units</source>
        <translation>jedes Zeichen zählt, in UTF-16-Codeeinheiten</translation>
    </message>
    <message>
        <source>a sentence has at least one word, and ends in punctuation if you require it</source>
        <translation>ein Satz hat mindestens ein Wort und endet, falls verlangt, mit einem Satzzeichen</translation>
    </message>
    <message>
        <source>there is nothing but white space in it</source>
        <translation>es enthält nur Leerraum</translation>
    </message>
    <message>
        <source>it does not end in a full stop, question mark or exclamation mark, or in one of them and a straight double quote</source>
        <translation>es endet nicht mit Punkt, Frage- oder Ausrufezeichen, auch nicht mit einem davon und einem geraden doppelten Anführungszeichen</translation>
    </message>
    <message>
        <source>there is no word in it</source>
        <translation>es enthält kein Wort</translation>
    </message>
    <message>
        <source>in American English, its single characters other than A, I, O and X are no words</source>
        <translation>im amerikanischen Englisch sind einzelne Zeichen außer A, I, O und X keine Wörter</translation>
    </message>
    <message>
        <source>the line ends in a line end</source>
        <translation>die Zeile endet mit einem Zeilenende</translation>
    </message>
    <message>
        <source>the line ends with the text</source>
        <translation>die Zeile endet mit dem Text</translation>
    </message>
    <message>
        <source>the line ends where the column between the margins is full</source>
        <translation>die Zeile endet, wo die Spalte zwischen den Rändern voll ist</translation>
    </message>
    <message>
        <source>a paragraph is not blank, and has as many sentences as you require</source>
        <translation>ein Absatz ist nicht leer und hat so viele Sätze wie verlangt</translation>
    </message>
    <message>
        <source>it has fewer counted sentences than you require (%1)</source>
        <translation>er hat weniger gezählte Sätze als verlangt (%1)</translation>
    </message>
    <message>
        <source>the paragraph begins with a tab</source>
        <translation>der Absatz beginnt mit einem Tabulator</translation>
    </message>
    <message>
        <source>it does not begin with a tab</source>
        <translation>er beginnt nicht mit einem Tabulator</translation>
    </message>
    <message>
        <source>it begins with white space other than a tab</source>
        <translation>er beginnt mit anderem Leerraum als einem Tabulator</translation>
    </message>
    <message>
        <source>it is indented by its style, not by a tab</source>
        <translation>er ist durch seine Formatvorlage eingerückt, nicht durch einen Tabulator</translation>
    </message>
</context>
<context>
    <name>DeskWindow</name>
    <message>
        <source>Quillbay</source>
        <translation>Quillbay</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Restore &amp;Defaults</source>
        <translation>&amp;Standardwerte wiederherstellen</translation>
    </message>
    <message>
        <source>&amp;About Quillbay</source>
        <translation>Ü&amp;ber Quillbay</translation>
    </message>
    <message>
        <source>Rules</source>
        <translation>Regeln</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>Why</source>
        <translation>Warum</translation>
    </message>
    <message>
        <source>%1: cannot be written, so the change is not stored. Check the permissions and the free space of its folder.</source>
        <translation>%1: lässt sich nicht schreiben, die Änderung ist daher nicht gespeichert. Bitte die Rechte und den freien Platz des Ordners prüfen.</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>About Quillbay</source>
        <translation>Über Quillbay</translation>
    </message>
    <message>
        <source>Quillbay %1 counts text for people who write.</source>
        <translation>Quillbay %1 zählt Texte für alle, die schreiben.</translation>
    </message>
    <message>
        <source>%1: is not a file of this computer; copy it here first.</source>
        <translation>%1: ist keine Datei dieses Rechners; bitte zuerst hierher kopieren.</translation>
    </message>
    <message>
        <source>%1: cannot be written (%2), so the default rules apply and changes are not stored. Make the folder writable to set your own.</source>
        <translation>%1: lässt sich nicht schreiben (%2), daher gelten die Standardregeln und Änderungen werden nicht gespeichert. Für eigene Regeln muss der Ordner beschreibbar sein.</translation>
    </message>
    <message>
        <source>There is no session bus: open windows of other programs of Quillbay follow a change only at their next count.</source>
        <translation>Es gibt keinen Sitzungsbus: Offene Fenster anderer Programme von Quillbay folgen einer Änderung erst bei der nächsten Zählung.</translation>
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
    <name>DocumentChooser</name>
    <message>
        <source>Documents (%1)</source>
        <translation>Dokumente (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
</context>
<context>
    <name>LengthUnit</name>
    <message>
        <source> mm</source>
        <translation>&#xa0;mm</translation>
    </message>
    <message>
        <source> in</source>
        <translation>&#xa0;Zoll</translation>
    </message>
</context>
<context>
    <name>PageSizeForMeasuringPreviewViewController</name>
    <message>
        <source>%1 x %2 inches</source>
        <translation>%1 × %2 Zoll</translation>
    </message>
</context>
<context>
    <name>PaperListModel</name>
    <message>
        <source>%1 (not available)</source>
        <translation>%1 (nicht verfügbar)</translation>
    </message>
    <message>
        <source>%1 (%2 × %3, custom)</source>
        <translation>%1 (%2 × %3, benutzerdefiniert)</translation>
    </message>
    <message>
        <source>%1 (%2 × %3)</source>
        <translation>%1 (%2 × %3)</translation>
    </message>
</context>
<context>
    <name>PaperPage</name>
    <message>
        <source>&amp;Paper:</source>
        <translation>&amp;Papier:</translation>
    </message>
    <message>
        <source>&amp;Left margin:</source>
        <translation>&amp;Linker Rand:</translation>
    </message>
    <message>
        <source>At most so wide that a column is left.</source>
        <translation>Höchstens so breit, dass eine Spalte bleibt.</translation>
    </message>
    <message>
        <source>&amp;Right margin:</source>
        <translation>&amp;Rechter Rand:</translation>
    </message>
    <message>
        <source>Shows the text of the clipboard on the page.</source>
        <translation>Zeigt den Text der Zwischenablage auf der Seite.</translation>
    </message>
    <message>
        <source>Show C&amp;opied Text</source>
        <translation>&amp;Kopierten Text zeigen</translation>
    </message>
    <message>
        <source>Show &amp;Sample Text</source>
        <translation>Bei&amp;spieltext zeigen</translation>
    </message>
    <message>
        <source>Preview of the page</source>
        <translation>Vorschau der Seite</translation>
    </message>
    <message>
        <source>Left Margin</source>
        <translation>Linker Rand</translation>
    </message>
    <message>
        <source>Right Margin</source>
        <translation>Rechter Rand</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>Asking the printing system for the papers of your printer…</source>
        <translation>Das Drucksystem wird nach den Papieren des Druckers gefragt …</translation>
    </message>
    <message>
        <source>These are the papers of your printer.</source>
        <translation>Das sind die Papiere des Druckers.</translation>
    </message>
    <message>
        <source>There is no printer, so these are common papers.</source>
        <translation>Es gibt keinen Drucker, daher stehen hier gängige Papiere.</translation>
    </message>
    <message>
        <source>The printing system does not answer, so these are common papers.</source>
        <translation>Das Drucksystem antwortet nicht, daher stehen hier gängige Papiere.</translation>
    </message>
    <message>
        <source>The margins leave no column on this paper, so lines are measured in the column before. Make the margins smaller.</source>
        <translation>Die Ränder lassen auf diesem Papier keine Spalte, daher werden die Zeilen in der bisherigen Spalte gemessen. Bitte die Ränder verkleinern.</translation>
    </message>
    <message>
        <source>Your paper is not available, so lines are measured on a page of %1 × %2.</source>
        <translation>Das gewählte Papier ist nicht verfügbar, daher werden die Zeilen auf einer Seite von %1 × %2 gemessen.</translation>
    </message>
    <message>
        <source>No paper has been chosen yet, so lines are measured on %1.</source>
        <translation>Noch ist kein Papier gewählt, daher werden die Zeilen auf %1 gemessen.</translation>
    </message>
    <message>
        <source>Lines are measured on %1.</source>
        <translation>Die Zeilen werden auf %1 gemessen.</translation>
    </message>
</context>
<context>
    <name>QBYServiceProviderShowStatsWindowController</name>
    <message>
        <source>Counting</source>
        <translation>Zählt</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>RulesEditor</name>
    <message>
        <source>Restore Defaults</source>
        <translation>Standardwerte wiederherstellen</translation>
    </message>
</context>
<context>
    <name>RulesPage</name>
    <message>
        <source>Statistics to Show</source>
        <translation>Angezeigte Zahlen</translation>
    </message>
    <message>
        <source>Words are always shown.</source>
        <translation>Die Wörter werden immer angezeigt.</translation>
    </message>
    <message>
        <source>&amp;Characters</source>
        <translation>&amp;Zeichen</translation>
    </message>
    <message>
        <source>Characters including &amp;white space</source>
        <translation>Zeichen mit &amp;Leerraum</translation>
    </message>
    <message>
        <source>Can be shown only together with the characters. Showing or hiding the characters shows or hides these too.</source>
        <translation>Nur zusammen mit den Zeichen anzuzeigen. Wer die Zeichen ein- oder ausblendet, blendet auch diese ein oder aus.</translation>
    </message>
    <message>
        <source>&amp;Sentences</source>
        <translation>&amp;Sätze</translation>
    </message>
    <message>
        <source>&amp;Lines on the page</source>
        <translation>Zeilen auf der Sei&amp;te</translation>
    </message>
    <message>
        <source>Hard line &amp;breaks</source>
        <translation>Harte Zeilen&amp;umbrüche</translation>
    </message>
    <message>
        <source>&amp;Paragraphs</source>
        <translation>&amp;Absätze</translation>
    </message>
    <message>
        <source>&amp;Indented paragraphs</source>
        <translation>&amp;Eingerückte Absätze</translation>
    </message>
    <message>
        <source>Sentences and Paragraphs</source>
        <translation>Sätze und Absätze</translation>
    </message>
    <message>
        <source>Count only sentences that end in terminal punc&amp;tuation</source>
        <translation>&amp;Nur Sätze zählen, die mit einem Satzzeichen enden</translation>
    </message>
    <message>
        <source>A full stop, question mark or exclamation mark. Without this rule, headings are sentences too.</source>
        <translation>Punkt, Fragezeichen oder Ausrufezeichen. Ohne diese Regel sind auch Überschriften Sätze.</translation>
    </message>
    <message>
        <source>&amp;Minimum number of sentences in a paragraph:</source>
        <translation>&amp;Mindestzahl der Sätze eines Absatzes:</translation>
    </message>
    <message>
        <source>Paragraphs with fewer sentences are not counted. With 0, all are.</source>
        <translation>Absätze mit weniger Sätzen zählen nicht. Bei 0 zählen alle.</translation>
    </message>
    <message>
        <source>Watched Files</source>
        <translation>Beobachtete Dateien</translation>
    </message>
    <message>
        <source>Spea&amp;k the number of words when it changes</source>
        <translation>&amp;Wortzahl vorlesen, wenn sie sich ändert</translation>
    </message>
    <message>
        <source>Speak a S&amp;ample</source>
        <translation>&amp;Probe vorlesen</translation>
    </message>
    <message>
        <source>Gives all rules, paper and margins the values of a new user. Undo brings yours back.</source>
        <translation>Gibt allen Regeln, dem Papier und den Rändern die Anfangswerte. „Rückgängig“ holt die eigenen zurück.</translation>
    </message>
    <message>
        <source>Restore &amp;Defaults</source>
        <translation>Standardwerte wiederhe&amp;rstellen</translation>
    </message>
    <message>
        <source>Minimum Number of Sentences</source>
        <translation>Mindestzahl der Sätze</translation>
    </message>
    <message>
        <source>No speech program is installed: %1 does not exist. Nothing will be spoken.</source>
        <translation>Es ist kein Sprachprogramm installiert: %1 gibt es nicht. Nichts wird vorgelesen.</translation>
    </message>
</context>
<context>
    <name>SpeechSample</name>
    <message>
        <source>%1 failed.</source>
        <translation>%1 ist gescheitert.</translation>
    </message>
</context>
<context>
    <name>TextSource</name>
    <message>
        <source>there is no text that can be read</source>
        <translation>es enthält keinen lesbaren Text</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Pasted text</source>
        <translation>Eingefügter Text</translation>
    </message>
</context>
<context>
    <name>WaitNotice</name>
    <message>
        <source>Still reading the text.</source>
        <translation>Der Text wird noch gelesen.</translation>
    </message>
    <message>
        <source>Still waiting for the counting service.</source>
        <translation>Der Zähldienst hat noch nicht geantwortet.</translation>
    </message>
</context>
<context>
    <name>WatchTextFileViewController</name>
    <message>
        <source>Counting</source>
        <translation>Zählt</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Stop watching this file</source>
        <translation>Diese Datei nicht mehr beobachten</translation>
    </message>
</context>
<context>
    <name>WhyPage</name>
    <message>
        <source>&amp;Open a Text…</source>
        <translation>Text ö&amp;ffnen …</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>Open, paste or drop a text to see why its counts are what they are.</source>
        <translation>Einen Text öffnen, einfügen oder hierher ziehen, um zu sehen, wie seine Zahlen entstehen.</translation>
    </message>
    <message>
        <source>Reading the text</source>
        <translation>Der Text wird gelesen</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Counts</source>
        <translation>Zahlen</translation>
    </message>
    <message>
        <source>Choose a count to have it marked in the text. A click on the chosen one, or Enter, goes to its next item.</source>
        <translation>Eine Zahl auswählen, um sie im Text zu markieren. Ein Klick auf die gewählte oder die Eingabetaste führt zur nächsten Stelle.</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Was</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Anzahl</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>To the previous item (Shift+F3)</source>
        <translation>Zur vorigen Stelle (Umschalt+F3)</translation>
    </message>
    <message>
        <source>Pre&amp;vious</source>
        <translation>&amp;Zurück</translation>
    </message>
    <message>
        <source>To the next item (F3)</source>
        <translation>Zur nächsten Stelle (F3)</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Weiter</translation>
    </message>
    <message>
        <source>Only what is not co&amp;unted</source>
        <translation>&amp;Nur was nicht zählt</translation>
    </message>
    <message>
        <source>Straight and dotted lines: counted. Wavy lines: not counted.</source>
        <translation>Gerade und gepunktete Linien: gezählt. Wellenlinien: nicht gezählt.</translation>
    </message>
    <message>
        <source>Words</source>
        <translation>Wörter</translation>
    </message>
    <message>
        <source>Characters</source>
        <translation>Zeichen</translation>
    </message>
    <message>
        <source>Characters including white space</source>
        <translation>Zeichen mit Leerraum</translation>
    </message>
    <message>
        <source>Sentences</source>
        <translation>Sätze</translation>
    </message>
    <message>
        <source>Lines on the page</source>
        <translation>Zeilen auf der Seite</translation>
    </message>
    <message>
        <source>Hard line breaks</source>
        <translation>Harte Zeilenumbrüche</translation>
    </message>
    <message>
        <source>Paragraphs</source>
        <translation>Absätze</translation>
    </message>
    <message>
        <source>Indented paragraphs</source>
        <translation>Eingerückte Absätze</translation>
    </message>
    <message>
        <source>The counting service does not answer. Is Quillbay installed completely?</source>
        <translation>Der Zähldienst antwortet nicht. Ist Quillbay vollständig installiert?</translation>
    </message>
    <message>
        <source>Open a Text</source>
        <translation>Text öffnen</translation>
    </message>
    <message>
        <source>There is no text on the clipboard.</source>
        <translation>In der Zwischenablage ist kein Text.</translation>
    </message>
    <message>
        <source>Reading %1 …</source>
        <translation>%1 wird gelesen …</translation>
    </message>
    <message>
        <source>Pasted text</source>
        <translation>Eingefügter Text</translation>
    </message>
    <message>
        <source>The text is too long to be shown and marked to its end. The counts are of all of it.</source>
        <translation>Der Text ist zu lang, um bis zum Ende gezeigt und markiert zu werden. Die Zahlen gelten für den ganzen Text.</translation>
    </message>
    <message>
        <source>There are no more of them after this place.</source>
        <translation>Nach dieser Stelle gibt es keine mehr.</translation>
    </message>
    <message>
        <source>There are no more of them before this place.</source>
        <translation>Vor dieser Stelle gibt es keine mehr.</translation>
    </message>
    <message>
        <source>Reading the clipboard …</source>
        <translation>Die Zwischenablage wird gelesen …</translation>
    </message>
    <message>
        <source>Reading what was dropped …</source>
        <translation>Der abgelegte Inhalt wird gelesen …</translation>
    </message>
    <message>
        <source>Item %1 of %2 (%3 of them counted):</source>
        <translation>Stelle %1 von %2 (davon %3 gezählt):</translation>
    </message>
</context>
<context>
    <name>WhyTextView</name>
    <message>
        <source>“%1” is counted: %2.</source>
        <translation>„%1“ zählt: %2.</translation>
    </message>
    <message>
        <source>“%1” is not counted: %2.</source>
        <translation>„%1“ zählt nicht: %2.</translation>
    </message>
</context>
<context>
    <name>WindowWidget</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
</context>
<context>
    <name>WordCounterStatStringFormatter</name>
    <message>
        <source>•Word Count: %1</source>
        <translation>•Anzahl der Wörter: %1</translation>
    </message>
    <message>
        <source>•Words: %1</source>
        <translation>•Wörter: %1</translation>
    </message>
    <message>
        <source>•Character Count: %1</source>
        <translation>•Anzahl der Zeichen: %1</translation>
    </message>
    <message>
        <source>•Characters: %1</source>
        <translation>•Zeichen: %1</translation>
    </message>
    <message>
        <source>•Including Whitespace Count: %1</source>
        <translation>•Anzahl mit Leerraum: %1</translation>
    </message>
    <message>
        <source>•Chars (+Whitespace): %1</source>
        <translation>•Zeichen (+Leerraum): %1</translation>
    </message>
    <message>
        <source>•Sentence Count: %1</source>
        <translation>•Anzahl der Sätze: %1</translation>
    </message>
    <message>
        <source>•Sentences: %1</source>
        <translation>•Sätze: %1</translation>
    </message>
    <message>
        <source>•Line Count: %1</source>
        <translation>•Anzahl der Zeilen: %1</translation>
    </message>
    <message>
        <source>•Lines: %1</source>
        <translation>•Zeilen: %1</translation>
    </message>
    <message>
        <source>•Hard Line Break Count: %1</source>
        <translation>•Anzahl der harten Zeilenumbrüche: %1</translation>
    </message>
    <message>
        <source>•Lines (Hard Break): %1</source>
        <translation>•Zeilen (harter Umbruch): %1</translation>
    </message>
    <message>
        <source>•Paragraph Count: %1</source>
        <translation>•Anzahl der Absätze: %1</translation>
    </message>
    <message>
        <source>•Paragraphs: %1</source>
        <translation>•Absätze: %1</translation>
    </message>
    <message>
        <source>•Indented Paragraph Count: %1</source>
        <translation>•Anzahl der eingerückten Absätze: %1</translation>
    </message>
    <message>
        <source>•Indented Paragraphs: %1</source>
        <translation>•Eingerückte Absätze: %1</translation>
    </message>
</context>
<context>
    <name>documents</name>
    <message>
        <source>is not plain text</source>
        <translation>ist kein reiner Text</translation>
    </message>
    <message>
        <source>is not RTF</source>
        <translation>ist kein RTF</translation>
    </message>
    <message>
        <source>is not an RTFD</source>
        <translation>ist kein RTFD</translation>
    </message>
    <message>
        <source>is not a web page</source>
        <translation>ist keine Webseite</translation>
    </message>
    <message>
        <source>is not a Word document</source>
        <translation>ist kein Word-Dokument</translation>
    </message>
    <message>
        <source>is not a PDF file</source>
        <translation>ist keine PDF-Datei</translation>
    </message>
    <message>
        <source>is not an OpenDocument text</source>
        <translation>ist kein OpenDocument-Text</translation>
    </message>
    <message>
        <source>is not an EPUB</source>
        <translation>ist kein EPUB</translation>
    </message>
    <message>
        <source>is a damaged Word document; open it in a word processor and save it again</source>
        <translation>ist ein beschädigtes Word-Dokument; in einer Textverarbeitung öffnen und neu speichern</translation>
    </message>
    <message>
        <source>is a damaged OpenDocument text; open it in a word processor and save it again</source>
        <translation>ist ein beschädigter OpenDocument-Text; in einer Textverarbeitung öffnen und neu speichern</translation>
    </message>
    <message>
        <source>is a damaged PDF file; create it again with the program that wrote it</source>
        <translation>ist eine beschädigte PDF-Datei; mit dem ursprünglichen Programm neu erzeugen</translation>
    </message>
    <message>
        <source>is a damaged RTFD; save it again</source>
        <translation>ist ein beschädigtes RTFD; neu speichern</translation>
    </message>
    <message>
        <source>is a damaged EPUB; create it again with the program that wrote it</source>
        <translation>ist ein beschädigtes EPUB; mit dem ursprünglichen Programm neu erzeugen</translation>
    </message>
    <message>
        <source>is damaged; save it again</source>
        <translation>ist beschädigt; neu speichern</translation>
    </message>
    <message>
        <source>takes too much time or memory to read; save it again with a word processor</source>
        <translation>braucht zum Lesen zu viel Zeit oder Speicher; mit einer Textverarbeitung neu speichern</translation>
    </message>
    <message>
        <source>takes too much time or memory to read; print it to a new PDF file first</source>
        <translation>braucht zum Lesen zu viel Zeit oder Speicher; zuerst in eine neue PDF-Datei drucken</translation>
    </message>
    <message>
        <source>takes too much time or memory to read; simplify or divide it</source>
        <translation>braucht zum Lesen zu viel Zeit oder Speicher; vereinfachen oder aufteilen</translation>
    </message>
    <message>
        <source>is encrypted (DRM); count a copy without copy protection</source>
        <translation>ist verschlüsselt (DRM); eine Fassung ohne Kopierschutz zählen</translation>
    </message>
    <message>
        <source>is encrypted; save it without a password</source>
        <translation>ist verschlüsselt; ohne Passwort speichern</translation>
    </message>
    <message>
        <source>is %1, not a text</source>
        <translation>ist kein Text: %1</translation>
    </message>
    <message>
        <source>is %1</source>
        <translation>ist %1</translation>
    </message>
    <message>
        <source>is in a Word format older than 2007; save it as .docx or RTF</source>
        <translation>hat ein Word-Format von vor 2007; als .docx oder RTF speichern</translation>
    </message>
    <message>
        <source>is a Word document in one XML file; save it as .docx</source>
        <translation>ist ein Word-Dokument in einer einzigen XML-Datei; als .docx speichern</translation>
    </message>
    <message>
        <source>is an RTFD without TXT.rtf; save it again</source>
        <translation>ist ein RTFD ohne TXT.rtf; neu speichern</translation>
    </message>
    <message>
        <source>its TXT.rtf cannot be read: %1</source>
        <translation>die enthaltene TXT.rtf lässt sich nicht lesen: %1</translation>
    </message>
    <message>
        <source>is an RTFD whose TXT.rtf is not RTF; save it again</source>
        <translation>ist ein RTFD, dessen TXT.rtf kein RTF ist; neu speichern</translation>
    </message>
    <message>
        <source>has a part in an unsupported format; save it again with a word processor</source>
        <translation>hat einen Teil in einem nicht unterstützten Format; mit einer Textverarbeitung neu speichern</translation>
    </message>
    <message>
        <source>is a PDF file without pages; print the document again</source>
        <translation>ist eine PDF-Datei ohne Seiten; das Dokument neu drucken</translation>
    </message>
    <message>
        <source>has no text on its pages; run text recognition on it first</source>
        <translation>hat keinen Text auf seinen Seiten; zuerst eine Texterkennung laufen lassen</translation>
    </message>
    <message>
        <source>has unreadable text, as its fonts do not map glyphs to characters; run text recognition on it first</source>
        <translation>hat unlesbaren Text, da seine Schriften den Glyphen keine Zeichen zuordnen; zuerst eine Texterkennung laufen lassen</translation>
    </message>
    <message>
        <source>is too large when unpacked; divide it</source>
        <translation>ist entpackt zu groß; aufteilen</translation>
    </message>
    <message>
        <source>has more than 1000 elements inside each other; simplify it</source>
        <translation>hat mehr als 1000 ineinander verschachtelte Elemente; vereinfachen</translation>
    </message>
    <message>
        <source>is a PDF file, which is not supported here; count it with &apos;quillbay count&apos;</source>
        <translation>ist eine PDF-Datei, die hier nicht unterstützt wird; mit &apos;quillbay count&apos; zählen</translation>
    </message>
    <message>
        <source>needs the program quillbay-document-reader, which is missing or does not start; reinstall Quillbay</source>
        <translation>braucht das Programm quillbay-document-reader, das fehlt oder nicht startet; Quillbay neu installieren</translation>
    </message>
    <message>
        <source>cannot be read safely, as the system refuses the filter of system calls; allow seccomp in the kernel or container</source>
        <translation>lässt sich nicht sicher lesen, da das System den Filter der Systemaufrufe ablehnt; seccomp im Kernel oder Container erlauben</translation>
    </message>
    <message>
        <source>was not read, as nobody needs it any more</source>
        <translation>wurde nicht gelesen, da es nicht mehr gebraucht wird</translation>
    </message>
</context>
<context>
    <name>documents/reading</name>
    <message>
        <source>a spreadsheet; save it as .csv or PDF</source>
        <translation>eine Tabelle; als .csv oder PDF speichern</translation>
    </message>
    <message>
        <source>a presentation; save it as PDF</source>
        <translation>eine Präsentation; als PDF speichern</translation>
    </message>
    <message>
        <source>a drawing; save it as PDF</source>
        <translation>eine Zeichnung; als PDF speichern</translation>
    </message>
    <message>
        <source>a .pages document; export it as .docx or RTF</source>
        <translation>ein .pages-Dokument; als .docx oder RTF exportieren</translation>
    </message>
    <message>
        <source>a document of an older office program; save it as .docx or RTF</source>
        <translation>ein Dokument eines älteren Büroprogramms; als .docx oder RTF speichern</translation>
    </message>
    <message>
        <source>a binary file</source>
        <translation>Binärdatei</translation>
    </message>
    <message>
        <source>a WordPerfect document; save it as .docx or RTF</source>
        <translation>ein WordPerfect-Dokument; als .docx oder RTF speichern</translation>
    </message>
    <message>
        <source>an e-book in the format FictionBook; convert it to EPUB</source>
        <translation>ein E-Book im Format FictionBook; in EPUB umwandeln</translation>
    </message>
    <message>
        <source>an AbiWord document; save it as .odt or RTF</source>
        <translation>ein AbiWord-Dokument; als .odt oder RTF speichern</translation>
    </message>
    <message>
        <source>a document in the Uniform Office Format; save it as .odt or .docx</source>
        <translation>ein Dokument im Uniform Office Format; als .odt oder .docx speichern</translation>
    </message>
    <message>
        <source>en</source>
        <extracomment>The code of your language, as &quot;de&quot;: that of the names of file types.</extracomment>
        <translation>de</translation>
    </message>
    <message>
        <source>a file of the type %1</source>
        <translation>Datei vom Typ %1</translation>
    </message>
</context>
<context>
    <name>front_end</name>
    <message>
        <source>Quillbay failed to read retrieve text.</source>
        <translation>Quillbay konnte den Text nicht lesen.</translation>
    </message>
    <message>
        <source>Quillbay failed to retrieve file urls.</source>
        <translation>Quillbay konnte die Adressen der Dateien nicht lesen.</translation>
    </message>
    <message>
        <source>Quillbay failed to validate file urls.</source>
        <translation>Quillbay kann keine dieser Dateien beobachten.</translation>
    </message>
</context>
<context>
    <name>platform/files</name>
    <message>
        <source>no such file</source>
        <translation>gibt es nicht</translation>
    </message>
    <message>
        <source>is a folder</source>
        <translation>ist ein Ordner</translation>
    </message>
    <message>
        <source>is a named pipe</source>
        <translation>ist eine benannte Pipe</translation>
    </message>
    <message>
        <source>is a device</source>
        <translation>ist ein Gerät</translation>
    </message>
    <message>
        <source>is a socket</source>
        <translation>ist ein Socket</translation>
    </message>
    <message>
        <source>permission denied</source>
        <translation>Zugriff verweigert</translation>
    </message>
    <message>
        <source>is larger than 2 GiB</source>
        <translation>ist größer als 2&#xa0;GiB</translation>
    </message>
    <message>
        <source>not enough memory</source>
        <translation>nicht genug Speicher</translation>
    </message>
    <message>
        <source>too many symbolic links</source>
        <translation>zu viele symbolische Links</translation>
    </message>
    <message>
        <source>name is too long</source>
        <translation>der Name ist zu lang</translation>
    </message>
    <message>
        <source>is in use by another program</source>
        <translation>wird von einem anderen Programm benutzt</translation>
    </message>
    <message>
        <source>cannot be read (%1)</source>
        <translation>lässt sich nicht lesen (%1)</translation>
    </message>
</context>
<context>
    <name>platform/pasteboard</name>
    <message>
        <source>there is no display to take the clipboard from; &apos;quillbay count&apos; counts a text from a pipe</source>
        <translation>ohne Bildschirm gibt es keine Zwischenablage; &apos;quillbay count&apos; zählt einen Text aus einer Pipe</translation>
    </message>
    <message>
        <source>there is no display to take the selection from; &apos;quillbay count&apos; counts a text from a pipe</source>
        <translation>ohne Bildschirm gibt es keine Auswahl; &apos;quillbay count&apos; zählt einen Text aus einer Pipe</translation>
    </message>
    <message>
        <source>the clipboard is empty</source>
        <translation>die Zwischenablage ist leer</translation>
    </message>
    <message>
        <source>nothing is selected</source>
        <translation>es ist nichts ausgewählt</translation>
    </message>
    <message>
        <source>the clipboard holds no text</source>
        <translation>die Zwischenablage enthält keinen Text</translation>
    </message>
    <message>
        <source>the selection holds no text</source>
        <translation>die Auswahl enthält keinen Text</translation>
    </message>
    <message>
        <source>the clipboard holds no files</source>
        <translation>die Zwischenablage enthält keine Dateien</translation>
    </message>
    <message>
        <source>the selection holds no files</source>
        <translation>die Auswahl enthält keine Dateien</translation>
    </message>
    <message>
        <source>the application that has the clipboard does not hand it over</source>
        <translation>die Anwendung mit der Zwischenablage gibt sie nicht heraus</translation>
    </message>
    <message>
        <source>the application that has the selection does not hand it over</source>
        <translation>die Anwendung mit der Auswahl gibt sie nicht heraus</translation>
    </message>
    <message>
        <source>the application that has the clipboard does not answer</source>
        <translation>die Anwendung mit der Zwischenablage antwortet nicht</translation>
    </message>
    <message>
        <source>the application that has the selection does not answer</source>
        <translation>die Anwendung mit der Auswahl antwortet nicht</translation>
    </message>
    <message>
        <source>the clipboard is too large</source>
        <translation>die Zwischenablage ist zu groß</translation>
    </message>
    <message>
        <source>the selection is too large</source>
        <translation>die Auswahl ist zu groß</translation>
    </message>
    <message>
        <source>not enough memory for the clipboard</source>
        <translation>nicht genug Speicher für die Zwischenablage</translation>
    </message>
    <message>
        <source>not enough memory for the selection</source>
        <translation>nicht genug Speicher für die Auswahl</translation>
    </message>
    <message>
        <source>this desktop shows the clipboard to no other program; copy the text and run &apos;quillbay text&apos; in a terminal, or open its file with &apos;quillbay text FILE&apos;</source>
        <translation>dieser Desktop zeigt die Zwischenablage keinem anderen Programm; kopieren Sie den Text und starten Sie &apos;quillbay text&apos; in einem Terminal, oder öffnen Sie seine Datei mit &apos;quillbay text FILE&apos;</translation>
    </message>
    <message>
        <source>this desktop shows the selection to no other program; copy the text and run &apos;quillbay text&apos; in a terminal, or open its file with &apos;quillbay text FILE&apos;</source>
        <translation>dieser Desktop zeigt die Auswahl keinem anderen Programm; kopieren Sie den Text und starten Sie &apos;quillbay text&apos; in einem Terminal, oder öffnen Sie seine Datei mit &apos;quillbay text FILE&apos;</translation>
    </message>
</context>
<context>
    <name>platform/services</name>
    <message>
        <source>there is no session bus</source>
        <translation>es gibt keinen Sitzungsbus</translation>
    </message>
    <message>
        <source>the service provider does not answer: %1</source>
        <translation>der Dienst von Quillbay antwortet nicht: %1</translation>
    </message>
</context>
<context>
    <name>platform/system</name>
    <message>
        <source>%1 cannot be started: %2</source>
        <translation>%1 lässt sich nicht starten: %2</translation>
    </message>
</context>
<context>
    <name>speech</name>
    <message>
        <source> words</source>
        <comment>behind a number in letters, which is spoken</comment>
        <translation> Wörter</translation>
    </message>
</context>
<context>
    <name>watching/windows</name>
    <message>
        <source>Failed to load text.</source>
        <translation>Der Text ließ sich nicht laden.</translation>
    </message>
    <message>
        <source>Quillbay was unable to update the stats of the text file currently being watched. This usually means the file was either renamed or deleted. You can choose another text file to watch or cancel.</source>
        <translation>Quillbay konnte die Zahlen der beobachteten Datei nicht aktualisieren. Meist wurde die Datei umbenannt oder gelöscht. Es lässt sich eine andere Datei zum Beobachten wählen oder abbrechen.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Choose another file.</source>
        <translation>Andere Datei wählen …</translation>
    </message>
</context>
</TS>
