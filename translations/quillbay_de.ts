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
    <message>
        <source>Count Selected Text</source>
        <translation>Ausgewählten Text zählen</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Dokumente</translation>
    </message>
</context>
<context>
    <name>Doctor</name>
    <message>
        <source>Everything works.</source>
        <translation>Alles funktioniert.</translation>
    </message>
    <message>
        <source>Quillbay works, with the limitations above.</source>
        <translation>Quillbay funktioniert mit den obigen Einschränkungen.</translation>
    </message>
    <message>
        <source>Something that Quillbay needs does not work; see above.</source>
        <translation>Etwas, das Quillbay braucht, funktioniert nicht; siehe oben.</translation>
    </message>
    <message>
        <source>Windows use Wayland directly, where they cannot choose their place or stay above others.</source>
        <translation>Fenster benutzen Wayland direkt, wo sie weder ihren Platz wählen noch über anderen bleiben können.</translation>
    </message>
    <message>
        <source>Install Xwayland (package xwayland), log out and in again.</source>
        <translation>Xwayland (Paket xwayland) installieren, ab- und wieder anmelden.</translation>
    </message>
    <message>
        <source>DISPLAY is not set.</source>
        <translation>DISPLAY ist nicht gesetzt.</translation>
    </message>
    <message>
        <source>There is no display for windows.</source>
        <translation>Es gibt keinen Bildschirm für Fenster.</translation>
    </message>
    <message>
        <source>Run this in a terminal of your desktop. &quot;quillbay count&quot; needs no display.</source>
        <translation>Dies in einem Terminal des Desktops ausführen. &quot;quillbay count&quot; braucht keinen Bildschirm.</translation>
    </message>
    <message>
        <source>the X display %1</source>
        <translation>der X-Anzeige %1</translation>
    </message>
    <message>
        <source>Windows appear on %1 of a Wayland session.</source>
        <translation>Fenster erscheinen auf %1 einer Wayland-Sitzung.</translation>
    </message>
    <message>
        <source>Windows appear on %1.</source>
        <translation>Fenster erscheinen auf %1.</translation>
    </message>
    <message>
        <source>DISPLAY names %1, which cannot be opened.</source>
        <translation>DISPLAY nennt %1, das sich nicht öffnen lässt.</translation>
    </message>
    <message>
        <source>Run this in a terminal of your desktop.</source>
        <translation>Dies in einem Terminal des Desktops ausführen.</translation>
    </message>
    <message>
        <source>Windows do not stay above others.</source>
        <translation>Fenster bleiben nicht über anderen.</translation>
    </message>
    <message>
        <source>There is no window manager: windows do not stay above others and cannot be moved.</source>
        <translation>Es gibt keine Fensterverwaltung: Fenster bleiben nicht über anderen und lassen sich nicht verschieben.</translation>
    </message>
    <message>
        <source>Start a window manager, such as openbox or xfwm4.</source>
        <translation>Eine Fensterverwaltung starten, etwa openbox oder xfwm4.</translation>
    </message>
    <message>
        <source>The window manager</source>
        <translation>Die Fensterverwaltung</translation>
    </message>
    <message>
        <source>%1 does not keep windows above others.</source>
        <translation>%1 hält Fenster nicht über anderen.</translation>
    </message>
    <message>
        <source>Use another window manager, or one of its rules for the windows of &quot;Quillbay&quot;.</source>
        <translation>Eine andere Fensterverwaltung verwenden oder eine ihrer Regeln für die Fenster von &quot;Quillbay&quot;.</translation>
    </message>
    <message>
        <source>%1 keeps Quillbay&apos;s windows above others.</source>
        <translation>%1 hält die Fenster von Quillbay über anderen.</translation>
    </message>
    <message>
        <source>The text that is selected in other programs can be read.</source>
        <translation>Der in anderen Programmen ausgewählte Text lässt sich lesen.</translation>
    </message>
    <message>
        <source>The selection cannot be read now: %1.</source>
        <translation>Die Auswahl lässt sich jetzt nicht lesen: %1.</translation>
    </message>
    <message>
        <source>Select text in another program and run this again.</source>
        <translation>In einem anderen Programm Text auswählen und dies erneut ausführen.</translation>
    </message>
    <message>
        <source>Selections cannot be counted: %1.</source>
        <translation>Auswahlen lassen sich nicht zählen: %1.</translation>
    </message>
    <message>
        <source>Copy the text and count it with &quot;quillbay selection --clipboard&quot;, or save it and watch the file.</source>
        <translation>Den Text kopieren und mit &quot;quillbay selection --clipboard&quot; zählen, oder ihn speichern und die Datei beobachten.</translation>
    </message>
    <message>
        <source>The desktop has a tray for icons.</source>
        <translation>Der Desktop hat einen Bereich für Symbole.</translation>
    </message>
    <message>
        <source>The desktop has no tray for icons. Quillbay needs none: every watched file has a window.</source>
        <translation>Der Desktop hat keinen Bereich für Symbole. Quillbay braucht keinen: Jede beobachtete Datei hat ein Fenster.</translation>
    </message>
    <message>
        <source>The check &quot;%1&quot; did not end within %2 seconds: what it asks does not answer.</source>
        <translation>Die Prüfung &quot;%1&quot; endete nicht binnen %2 Sekunden: was sie fragt, antwortet nicht.</translation>
    </message>
    <message>
        <source>Log out and in again; if that does not help, restart the computer.</source>
        <translation>Ab- und wieder anmelden; hilft das nicht, den Rechner neu starten.</translation>
    </message>
    <message>
        <source>There is not enough memory for the check &quot;%1&quot;.</source>
        <translation>Für die Prüfung &quot;%1&quot; reicht der Speicher nicht.</translation>
    </message>
    <message>
        <source>Close some programs and run this again.</source>
        <translation>Einige Programme schließen und dies erneut ausführen.</translation>
    </message>
    <message>
        <source>The check &quot;%1&quot; was left out, because &quot;%2&quot; failed.</source>
        <translation>Die Prüfung &quot;%1&quot; entfiel, weil &quot;%2&quot; scheiterte.</translation>
    </message>
    <message>
        <source>Install the package fonts-urw-base35 or fonts-liberation.</source>
        <translation>Das Paket fonts-urw-base35 oder fonts-liberation installieren.</translation>
    </message>
    <message>
        <source>The default printer answers.</source>
        <translation>Der Standarddrucker antwortet.</translation>
    </message>
    <message>
        <source>There is no printer; Quillbay offers the usual papers.</source>
        <translation>Es gibt keinen Drucker; Quillbay bietet die gängigen Papiere an.</translation>
    </message>
    <message>
        <source>The default printer does not answer within a second; meanwhile Quillbay offers the usual papers.</source>
        <translation>Der Standarddrucker antwortet nicht binnen einer Sekunde; bis dahin bietet Quillbay die gängigen Papiere an.</translation>
    </message>
    <message>
        <source>There is no usable font: lines are counted as if all letters had the same width.</source>
        <translation>Es gibt keine brauchbare Schrift: Zeilen werden gezählt, als wären alle Buchstaben gleich breit.</translation>
    </message>
    <message>
        <source>Plain text is measured with %1, whose letters are not as wide as those of Helvetica: lines are counted otherwise than elsewhere.</source>
        <translation>Reiner Text wird mit %1 gemessen, dessen Buchstaben nicht so breit sind wie die von Helvetica: Zeilen werden anders gezählt als anderswo.</translation>
    </message>
    <message>
        <source>Plain text is measured with %1, which stands for Helvetica.</source>
        <translation>Reiner Text wird mit %1 gemessen, das für Helvetica steht.</translation>
    </message>
    <message>
        <source>The margins leave no width for text on the paper %1.</source>
        <translation>Die Ränder lassen auf dem Papier %1 keine Breite für Text.</translation>
    </message>
    <message>
        <source>Run &quot;quillbay preferences --reset left-margin right-margin&quot;.</source>
        <translation>&quot;quillbay preferences --reset left-margin right-margin&quot; ausführen.</translation>
    </message>
    <message>
        <source>Lines are counted in a column of %1 points on the paper %2.</source>
        <translation>Zeilen werden in einer Spalte von %1 Punkt auf dem Papier %2 gezählt.</translation>
    </message>
    <message>
        <source>Check the printer with &quot;lpstat -t&quot;.</source>
        <translation>Den Drucker mit &quot;lpstat -t&quot; prüfen.</translation>
    </message>
    <message>
        <source>This is Quillbay %1 with Qt %2 on %3, Linux %4.</source>
        <translation>Dies ist Quillbay %1 mit Qt %2 auf %3, Linux %4.</translation>
    </message>
    <message>
        <source>The desktop is %1, the session %2.</source>
        <translation>Der Desktop ist %1, die Sitzung %2.</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>A letter that stands alone counts as a word.</source>
        <translation>Ein einzelner Buchstabe zählt als Wort.</translation>
    </message>
    <message>
        <source>A letter that stands alone counts as a word only if it is a, I, O or x.</source>
        <translation>Ein einzelner Buchstabe zählt nur als Wort, wenn er a, I, O oder x ist.</translation>
    </message>
    <message>
        <source>The locale %1 is not installed; words are counted by the rules of %2.</source>
        <translation>Die Locale %1 ist nicht installiert; Wörter werden nach den Regeln von %2 gezählt.</translation>
    </message>
    <message>
        <source>Install the locale: choose it in the list of &quot;sudo dpkg-reconfigure locales&quot;.</source>
        <translation>Die Locale installieren: in der Liste von &quot;sudo dpkg-reconfigure locales&quot; auswählen.</translation>
    </message>
    <message>
        <source>Words are counted by the rules of the locale %1.</source>
        <translation>Wörter werden nach den Regeln der Locale %1 gezählt.</translation>
    </message>
    <message>
        <source>To count by the rules of your language, set LANG to its locale.</source>
        <translation>Um nach den Regeln der eigenen Sprache zu zählen, LANG auf deren Locale setzen.</translation>
    </message>
    <message>
        <source>The preferences in %1 cannot be read: %2. The default rules apply.</source>
        <translation>Die Einstellungen in %1 lassen sich nicht lesen: %2. Es gelten die Standardregeln.</translation>
    </message>
    <message>
        <source>Run &quot;quillbay preferences --reset-all&quot;, which puts the damaged file aside.</source>
        <translation>&quot;quillbay preferences --reset-all&quot; ausführen, das die beschädigte Datei beiseitelegt.</translation>
    </message>
    <message>
        <source>Check the permissions of the file and of its folders.</source>
        <translation>Die Rechte der Datei und ihrer Ordner prüfen.</translation>
    </message>
    <message>
        <source>Preferences cannot be stored in %1: %2.</source>
        <translation>Einstellungen lassen sich nicht in %1 speichern: %2.</translation>
    </message>
    <message>
        <source>Make the file and its folder writable.</source>
        <translation>Die Datei und ihren Ordner beschreibbar machen.</translation>
    </message>
    <message>
        <source>The preferences in %1 can be read and written.</source>
        <translation>Die Einstellungen in %1 lassen sich lesen und schreiben.</translation>
    </message>
    <message>
        <source>There are no preferences yet; the first count writes them to %1.</source>
        <translation>Noch gibt es keine Einstellungen; die erste Zählung schreibt sie nach %1.</translation>
    </message>
    <message>
        <source>Documents other than plain text cannot be read: %1.</source>
        <translation>Andere Dokumente als reiner Text lassen sich nicht lesen: %1.</translation>
    </message>
    <message>
        <source>a test document has lost its text</source>
        <translation>ein Testdokument hat seinen Text verloren</translation>
    </message>
    <message>
        <source>Install Quillbay again. If that does not help, use a kernel of the distribution: the sandbox needs its filter of system calls (seccomp).</source>
        <translation>Quillbay neu installieren. Hilft das nicht, einen Kernel der Distribution verwenden: Die Sandbox braucht seinen Filter der Systemaufrufe (seccomp).</translation>
    </message>
    <message>
        <source>Documents are read in a sandbox, which a filter of system calls keeps up alone: the kernel has no Landlock, or it is switched off.</source>
        <translation>Dokumente werden in einer Sandbox gelesen, die allein ein Filter der Systemaufrufe sichert: der Kernel hat kein Landlock, oder es ist ausgeschaltet.</translation>
    </message>
    <message>
        <source>Start the kernel with &quot;landlock&quot; in its parameter lsm=.</source>
        <translation>Den Kernel mit &quot;landlock&quot; in seinem Parameter lsm= starten.</translation>
    </message>
    <message>
        <source>Documents are read in a sandbox (Landlock %1 and a filter of system calls).</source>
        <translation>Dokumente werden in einer Sandbox gelesen (Landlock %1 und ein Filter der Systemaufrufe).</translation>
    </message>
    <message>
        <source>The bus does not know the service %1. Install the package quillbay again; after an installation to another place, log out and in again.</source>
        <translation>Der Bus kennt den Dienst %1 nicht. Das Paket quillbay neu installieren; nach einer Installation an einen anderen Ort ab- und wieder anmelden.</translation>
    </message>
    <message>
        <source>Log out and in again. If that does not help, look for &quot;quillbay&quot; in the output of &quot;journalctl --user --since today&quot;.</source>
        <translation>Ab- und wieder anmelden. Hilft das nicht, in der Ausgabe von &quot;journalctl --user --since today&quot; nach &quot;quillbay&quot; suchen.</translation>
    </message>
    <message>
        <source>There is no session bus, so no window can open: %1.</source>
        <translation>Es gibt keinen Sitzungsbus, daher kann sich kein Fenster öffnen: %1.</translation>
    </message>
    <message>
        <source>Run this in a terminal of your desktop. &quot;quillbay count&quot; needs no bus.</source>
        <translation>Dies in einem Terminal des Desktops ausführen. &quot;quillbay count&quot; braucht keinen Bus.</translation>
    </message>
    <message>
        <source>The session bus answers.</source>
        <translation>Der Sitzungsbus antwortet.</translation>
    </message>
    <message>
        <source>Texts in windows are not counted: %1.</source>
        <translation>Texte in Fenstern werden nicht gezählt: %1.</translation>
    </message>
    <message>
        <source>The counting service counts %1 words in &quot;One two three.&quot;</source>
        <translation>Der Zähldienst zählt %1 Wörter in &quot;One two three.&quot;</translation>
    </message>
    <message>
        <source>Install the package quillbay again.</source>
        <translation>Das Paket quillbay neu installieren.</translation>
    </message>
    <message>
        <source>The counting service counts three words in &quot;One two three.&quot;</source>
        <translation>Der Zähldienst zählt drei Wörter in &quot;One two three.&quot;</translation>
    </message>
    <message>
        <source>The program with the windows does not start: %1.</source>
        <translation>Das Programm mit den Fenstern startet nicht: %1.</translation>
    </message>
    <message>
        <source>The program with the windows starts.</source>
        <translation>Das Programm mit den Fenstern startet.</translation>
    </message>
    <message>
        <source>The desktop shows notifications.</source>
        <translation>Der Desktop zeigt Benachrichtigungen.</translation>
    </message>
    <message>
        <source>The desktop shows no notifications: an error is invisible where Quillbay was not started in a terminal.</source>
        <translation>Der Desktop zeigt keine Benachrichtigungen: Ein Fehler bleibt unsichtbar, wo Quillbay nicht in einem Terminal gestartet wurde.</translation>
    </message>
    <message>
        <source>Install a notification server, such as the package dunst.</source>
        <translation>Einen Benachrichtigungsdienst installieren, etwa das Paket dunst.</translation>
    </message>
    <message>
        <source>no instance of inotify is left</source>
        <translation>keine Instanz von inotify ist mehr frei</translation>
    </message>
    <message>
        <source>no watch of inotify is left</source>
        <translation>keine Beobachtung von inotify ist mehr frei</translation>
    </message>
    <message>
        <source>Raise the limit: run &quot;sudo sysctl %1&quot;, and write that setting into a file in /etc/sysctl.d to keep it.</source>
        <translation>Die Grenze anheben: &quot;sudo sysctl %1&quot; ausführen und die Einstellung in eine Datei in /etc/sysctl.d schreiben, damit sie bleibt.</translation>
    </message>
    <message>
        <source>At least %1 of %2 watches and %3 of %4 instances of inotify are in use.</source>
        <translation>Mindestens %1 von %2 Beobachtungen und %3 von %4 Instanzen von inotify sind in Gebrauch.</translation>
    </message>
    <message>
        <source>The kernel does not report changes of further files (%1), so they are checked every two seconds.</source>
        <translation>Der Kernel meldet Änderungen weiterer Dateien nicht (%1), daher werden sie alle zwei Sekunden geprüft.</translation>
    </message>
    <message>
        <source>The kernel reports changes of watched files.</source>
        <translation>Der Kernel meldet Änderungen beobachteter Dateien.</translation>
    </message>
    <message>
        <source>Counts of watched files cannot be spoken, because there is no command %1.</source>
        <translation>Die Zahlen beobachteter Dateien lassen sich nicht vorlesen, weil es den Befehl %1 nicht gibt.</translation>
    </message>
    <message>
        <source>Install the package quillbay, or another one with that command.</source>
        <translation>Das Paket quillbay oder ein anderes mit diesem Befehl installieren.</translation>
    </message>
    <message>
        <source>Counts of watched files cannot be spoken, because no program for speech is installed.</source>
        <translation>Die Zahlen beobachteter Dateien lassen sich nicht vorlesen, weil kein Sprachprogramm installiert ist.</translation>
    </message>
    <message>
        <source>Install the package speech-dispatcher or espeak-ng.</source>
        <translation>Das Paket speech-dispatcher oder espeak-ng installieren.</translation>
    </message>
    <message>
        <source>Counts of watched files are spoken by %1.</source>
        <translation>Die Zahlen beobachteter Dateien werden von %1 vorgelesen.</translation>
    </message>
    <message>
        <source>Counts of watched files can be spoken by %1; this is switched off.</source>
        <translation>Die Zahlen beobachteter Dateien kann %1 vorlesen; das ist ausgeschaltet.</translation>
    </message>
    <message>
        <source>Windows need an X display, or Qt&apos;s plugin for Wayland.</source>
        <translation>Fenster brauchen eine X-Anzeige oder das Wayland-Modul von Qt.</translation>
    </message>
    <message>
        <source>Install the package xwayland, or else qt6-wayland, and log in again.</source>
        <translation>Das Paket xwayland oder sonst qt6-wayland installieren und neu anmelden.</translation>
    </message>
    <message>
        <source>The menus of these file managers have no entries of Quillbay: %1.</source>
        <translation>Die Menüs dieser Dateimanager haben keine Einträge von Quillbay: %1.</translation>
    </message>
    <message>
        <source>Install the Debian package of Quillbay and start the file manager again.</source>
        <translation>Das Debian-Paket von Quillbay installieren und den Dateimanager neu starten.</translation>
    </message>
    <message>
        <source>No file manager is installed that can have entries of Quillbay.</source>
        <translation>Es ist kein Dateimanager installiert, der Einträge von Quillbay haben kann.</translation>
    </message>
    <message>
        <source>The menus of these file managers have entries of Quillbay: %1.</source>
        <translation>Die Menüs dieser Dateimanager haben Einträge von Quillbay: %1.</translation>
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
    <name>DocumentList</name>
    <message>
        <source>%1: cannot be used (%2), so the list, the goals and the history are not stored. Check the permissions and the free space of its folder.</source>
        <translation>%1: lässt sich nicht benutzen (%2), daher werden Liste, Ziele und Verlauf nicht gespeichert. Bitte die Rechte und den freien Platz des Ordners prüfen.</translation>
    </message>
    <message>
        <source>%1: was damaged. It was renamed to %2, and a new list begun.</source>
        <translation>%1: war beschädigt. Die Datei heißt nun %2, und eine neue Liste wurde begonnen.</translation>
    </message>
</context>
<context>
    <name>DocumentTable</name>
    <message>
        <source>Words</source>
        <translation>Wörter</translation>
    </message>
    <message>
        <source>Characters</source>
        <translation>Zeichen</translation>
    </message>
    <message>
        <source>Characters with white space</source>
        <translation>Zeichen mit Leerraum</translation>
    </message>
    <message>
        <source>Sentences</source>
        <translation>Sätze</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Zeilen</translation>
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
        <source>More than %1</source>
        <translation>Mehr als %1</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Reading …</source>
        <translation>Wird gelesen …</translation>
    </message>
    <message>
        <source>The file is missing</source>
        <translation>Die Datei fehlt</translation>
    </message>
    <message>
        <source>The file cannot be read</source>
        <translation>Die Datei lässt sich nicht lesen</translation>
    </message>
    <message>
        <source>The counting service does not answer</source>
        <translation>Der Zähldienst antwortet nicht</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>By how many words the document has changed since this window was opened</source>
        <translation>Um wie viele Wörter sich das Dokument geändert hat, seit dieses Fenster offen ist</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Sitzung</translation>
    </message>
    <message>
        <source>By how many words the document has changed since midnight</source>
        <translation>Um wie viele Wörter sich das Dokument seit Mitternacht geändert hat</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Heute</translation>
    </message>
    <message>
        <source>Goal</source>
        <translation>Ziel</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Last save</source>
        <translation>Gespeichert</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Today: %1</source>
        <translation>Heute: %1</translation>
    </message>
</context>
<context>
    <name>DocumentsPage</name>
    <message>
        <source>F&amp;ilter:</source>
        <translation>F&amp;ilter:</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Dokumente</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>Hin&amp;zufügen …</translation>
    </message>
    <message>
        <source>Add F&amp;older…</source>
        <translation>&amp;Ordner hinzufügen …</translation>
    </message>
    <message>
        <source>Show on &amp;Top</source>
        <translation>Obe&amp;n zeigen</translation>
    </message>
    <message>
        <source>Open a small window that stays above the others, with the counts of the document</source>
        <translation>Ein kleines Fenster mit den Zahlen des Dokuments öffnen, das über den anderen bleibt</translation>
    </message>
    <message>
        <source>&amp;Goal…</source>
        <translation>Zie&amp;l …</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Copy the selected rows, or all, as text, CSV and HTML</source>
        <translation>Die ausgewählten Zeilen, sonst alle, als Text, CSV und HTML kopieren</translation>
    </message>
    <message>
        <source>&amp;Up</source>
        <translation>Na&amp;ch oben</translation>
    </message>
    <message>
        <source>Do&amp;wn</source>
        <translation>Nach &amp;unten</translation>
    </message>
    <message>
        <source>Fi&amp;nd File…</source>
        <translation>Datei &amp;suchen …</translation>
    </message>
    <message>
        <source>Choose the file of a document that was moved</source>
        <translation>Die Datei eines verschobenen Dokuments wählen</translation>
    </message>
    <message>
        <source>&amp;Remove…</source>
        <translation>&amp;Entfernen …</translation>
    </message>
    <message>
        <source>&amp;Keep the history of the counts</source>
        <translation>&amp;Verlauf der Zahlen aufheben</translation>
    </message>
    <message>
        <source>Of each save the time and the eight counts are kept, and nothing of the text. Off: only what the changes of the day need.</source>
        <translation>Von jedem Speichern werden die Zeit und die acht Zahlen aufgehoben, vom Text nichts. Aus: nur, was die Änderungen des Tages brauchen.</translation>
    </message>
    <message>
        <source>Drop documents here, or add them: their counts follow every save, and you see what today brought. Nothing of their texts is kept.</source>
        <translation>Dokumente hier ablegen oder hinzufügen: Ihre Zahlen folgen jedem Speichern, und man sieht, was der Tag gebracht hat. Von den Texten wird nichts aufgehoben.</translation>
    </message>
    <message>
        <source>All documents (%1)</source>
        <translation>Alle Dokumente (%1)</translation>
    </message>
    <message>
        <source>Selected documents (%1)</source>
        <translation>Ausgewählte Dokumente (%1)</translation>
    </message>
    <message>
        <source>&amp;Forget the History</source>
        <translation>Verlauf ver&amp;gessen</translation>
    </message>
    <message>
        <source>Add a Folder</source>
        <translation>Ordner hinzufügen</translation>
    </message>
    <message>
        <source>Add the files whose names match, in the folders inside it, too:</source>
        <translation>Dateien mit passenden Namen hinzufügen, auch aus den Ordnern darin:</translation>
    </message>
    <message>
        <source>No file in %1 matches %2.</source>
        <translation>Keine Datei in %1 passt zu %2.</translation>
    </message>
    <message>
        <source>Remove %1 from the list, and forget its goal and its history?</source>
        <translation>%1 aus der Liste entfernen und Ziel und Verlauf vergessen?</translation>
    </message>
    <message>
        <source>Remove %1 documents from the list, and forget their goals and their history?</source>
        <translation>%1 Dokumente aus der Liste entfernen und ihre Ziele und ihren Verlauf vergessen?</translation>
    </message>
    <message>
        <source>Remove Documents</source>
        <translation>Dokumente entfernen</translation>
    </message>
    <message>
        <source>The files stay where they are.</source>
        <translation>Die Dateien bleiben, wo sie sind.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
</context>
<context>
    <name>FurtherRulesBox</name>
    <message>
        <source>%L1 words</source>
        <translation>%L1 Wörter</translation>
    </message>
    <message>
        <source>%L1 characters</source>
        <translation>%L1 Zeichen</translation>
    </message>
    <message>
        <source>Beyond the Eight Numbers</source>
        <translation>Über die acht Zahlen hinaus</translation>
    </message>
    <message>
        <source>Shown in the table of documents and in the terminal only.</source>
        <translation>Nur in der Tabelle der Dokumente und im Terminal zu sehen.</translation>
    </message>
    <message>
        <source>Pages of your paper</source>
        <translation>Seiten des eigenen Papiers</translation>
    </message>
    <message>
        <source>Standard pages</source>
        <translation>Normseiten</translation>
    </message>
    <message>
        <source>Reading time</source>
        <translation>Lesezeit</translation>
    </message>
    <message>
        <source>Reading Speed</source>
        <translation>Lesegeschwindigkeit</translation>
    </message>
    <message>
        <source>Speaking time</source>
        <translation>Sprechzeit</translation>
    </message>
    <message>
        <source>Speaking Speed</source>
        <translation>Sprechgeschwindigkeit</translation>
    </message>
    <message>
        <source>Characters as a reader sees them</source>
        <translation>Zeichen, wie man sie beim Lesen sieht</translation>
    </message>
    <message>
        <source>Counts what looks like one character as one: letters with their accents, and emoji.</source>
        <translation>Zählt als eins, was wie ein Zeichen aussieht: Buchstaben mit ihren Akzenten und Emojis.</translation>
    </message>
    <message>
        <source> words per minute</source>
        <translation> Wörter pro Minute</translation>
    </message>
    <message>
        <source>Standard Page</source>
        <translation>Normseite</translation>
    </message>
    <message>
        <source>Choose a size, or type your own. White space counts as characters.</source>
        <translation>Eine Größe wählen oder eine eigene eingeben. Leerraum zählt zu den Zeichen.</translation>
    </message>
    <message>
        <source>Speed:</source>
        <translation>Geschwindigkeit:</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Größe:</translation>
    </message>
</context>
<context>
    <name>GoalDialog</name>
    <message>
        <source>&amp;Goal</source>
        <translation>&amp;Ziel</translation>
    </message>
    <message>
        <source>Nu&amp;mber:</source>
        <translation>&amp;Anzahl:</translation>
    </message>
    <message>
        <source>&amp;Of:</source>
        <translation>&amp;Von:</translation>
    </message>
    <message>
        <source>In &amp;all</source>
        <translation>&amp;Insgesamt</translation>
    </message>
    <message>
        <source>&amp;Until</source>
        <translation>&amp;Bis</translation>
    </message>
    <message>
        <source>Last day</source>
        <translation>Letzter Tag</translation>
    </message>
    <message>
        <source>Each &amp;day, from midnight</source>
        <translation>Jeden &amp;Tag ab Mitternacht</translation>
    </message>
    <message>
        <source>Do not subtract &amp;what is deleted</source>
        <translation>&amp;Gelöschtes nicht abziehen</translation>
    </message>
    <message>
        <source>What is deleted counts against the day. With the switch, what is added between two saves counts, and what is deleted is left aside.</source>
        <translation>Was gelöscht wird, geht vom Tag ab. Mit dem Schalter zählt, was zwischen zwei Speicherungen dazukommt, und Gelöschtes bleibt außer Betracht.</translation>
    </message>
    <message>
        <source>&amp;Limit</source>
        <translation>G&amp;renze</translation>
    </message>
    <message>
        <source>At mo&amp;st:</source>
        <translation>&amp;Höchstens:</translation>
    </message>
    <message>
        <source>O&amp;f:</source>
        <translation>V&amp;on:</translation>
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
        <source>Characters with white space</source>
        <translation>Zeichen mit Leerraum</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Zeilen</translation>
    </message>
    <message>
        <source>Goal of %1</source>
        <translation>Ziel von %1</translation>
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
    <name>Manual</name>
    <message>
        <source>Usage:</source>
        <translation>Aufruf:</translation>
    </message>
    <message>
        <source>Examples:</source>
        <translation>Beispiele:</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Optionen:</translation>
    </message>
    <message>
        <source>Exit status:</source>
        <translation>Rückgabewert:</translation>
    </message>
    <message>
        <source>SYNOPSIS</source>
        <translation>ÜBERSICHT</translation>
    </message>
    <message>
        <source>NAMES</source>
        <translation>NAMEN</translation>
    </message>
    <message>
        <source>COMMANDS</source>
        <translation>BEFEHLE</translation>
    </message>
    <message>
        <source>OPTIONS</source>
        <translation>OPTIONEN</translation>
    </message>
    <message>
        <source>EXAMPLES</source>
        <translation>BEISPIELE</translation>
    </message>
    <message>
        <source>EXIT STATUS</source>
        <translation>RÜCKGABEWERT</translation>
    </message>
    <message>
        <source>SEE ALSO</source>
        <translation>SIEHE AUCH</translation>
    </message>
    <message>
        <source>User Commands</source>
        <translation>Befehle für Benutzer</translation>
    </message>
    <message>
        <source>System Programs</source>
        <translation>Systemprogramme</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NAME</translation>
    </message>
    <message>
        <source>DESCRIPTION</source>
        <translation>BESCHREIBUNG</translation>
    </message>
    <message>
        <source>NOTES</source>
        <translation>ANMERKUNGEN</translation>
    </message>
    <message>
        <source>print this help and exit</source>
        <translation>diese Hilfe ausgeben und beenden</translation>
    </message>
    <message>
        <source>print the version and exit</source>
        <translation>die Version ausgeben und beenden</translation>
    </message>
    <message>
        <source>the options or arguments were wrong</source>
        <translation>die Optionen oder Argumente waren falsch</translation>
    </message>
    <message>
        <source>print the counts of files or of standard input</source>
        <translation>die Zahlen von Dateien oder der Standardeingabe ausgeben</translation>
    </message>
    <message>
        <source>FILE can be plain text, RTF, RTFD, a web page, a Word document, an OpenDocument text, an EPUB or a PDF file. A file that is no text, such as a picture, is reported and not counted.</source>
        <translation>FILE kann reiner Text, RTF, RTFD, eine Webseite, ein Word-Dokument, ein OpenDocument-Text, ein EPUB oder eine PDF-Datei sein. Eine Datei, die kein Text ist, etwa ein Bild, wird gemeldet und nicht gezählt.</translation>
    </message>
    <message>
        <source>print a JSON object on a line of its own for each file</source>
        <translation>für jede Datei ein JSON-Objekt auf einer eigenen Zeile ausgeben</translation>
    </message>
    <message>
        <source>print tab-separated columns, with their names on the first line</source>
        <translation>durch Tabulatoren getrennte Spalten ausgeben, mit ihren Namen in der ersten Zeile</translation>
    </message>
    <message>
        <source>also count the files named in LIST, after those of the command line; the names are separated by line ends, or by NUL bytes if there are any; LIST may be - for standard input</source>
        <translation>nach den Dateien der Befehlszeile auch die in LIST genannten zählen; die Namen sind durch Zeilenenden getrennt oder, falls vorhanden, durch NUL-Bytes; LIST kann - für die Standardeingabe sein</translation>
    </message>
    <message>
        <source>count every file as plain text, whatever it is: a web page with its markup, a picture with its bytes</source>
        <translation>jede Datei als reinen Text zählen, was immer sie ist: eine Webseite mit ihren Auszeichnungen, ein Bild mit seinen Bytes</translation>
    </message>
    <message>
        <source>For several files, the table ends with a row of totals; the other two formats have no such row.</source>
        <translation>Bei mehreren Dateien endet die Tabelle mit einer Summenzeile; die beiden anderen Formate haben keine.</translation>
    </message>
    <message>
        <source>all files were counted</source>
        <translation>alle Dateien wurden gezählt</translation>
    </message>
    <message>
        <source>a file could not be counted</source>
        <translation>eine Datei konnte nicht gezählt werden</translation>
    </message>
    <message>
        <source>count the text files of this folder, with their total</source>
        <translation>die Textdateien dieses Ordners zählen, mit ihrer Summe</translation>
    </message>
    <message>
        <source>count all OpenDocument texts below this folder, whatever their names are</source>
        <translation>alle OpenDocument-Texte unter diesem Ordner zählen, wie immer sie heißen</translation>
    </message>
    <message>
        <source>print nothing but the number of words</source>
        <translation>nur die Zahl der Wörter ausgeben</translation>
    </message>
    <message>
        <source>set the rules of the counts in a window</source>
        <translation>die Regeln der Zahlen in einem Fenster einstellen</translation>
    </message>
    <message>
        <source>Opens Quillbay&apos;s main window, in which you set the rules of the counts. If it is open already, it comes to the front. With FILE, it shows why the counts of that text are what they are.</source>
        <translation>Öffnet das Hauptfenster von Quillbay, in dem sich die Regeln der Zahlen einstellen lassen. Ist es schon offen, kommt es nach vorn. Mit FILE zeigt es, wie die Zahlen dieses Textes entstehen.</translation>
    </message>
    <message>
        <source>the window was closed, or another process shows it</source>
        <translation>das Fenster wurde geschlossen, oder ein anderer Prozess zeigt es</translation>
    </message>
    <message>
        <source>the window could not be shown</source>
        <translation>das Fenster konnte nicht gezeigt werden</translation>
    </message>
    <message>
        <source>print what counts in files, what does not, and why</source>
        <translation>ausgeben, was in Dateien zählt, was nicht und warum</translation>
    </message>
    <message>
        <source>Prints the counts of each FILE as &apos;quillbay count&apos; does, and why they are what they are. Without FILE, or if FILE is -, reads standard input. FILE can be of every kind that &apos;quillbay count&apos; counts.</source>
        <translation>Gibt wie &apos;quillbay count&apos; die Zahlen jeder Datei FILE aus und wie sie entstehen. Ohne FILE, oder wenn FILE - ist, wird die Standardeingabe gelesen. FILE kann von jeder Art sein, die &apos;quillbay count&apos; zählt.</translation>
    </message>
    <message>
        <source>Without options, prints each count with what was not counted and why. With the name of a count, prints the whole text, with what counted in [square brackets] and what did not in {curly ones}. Several counts are explained one after another.</source>
        <translation>Ohne Optionen wird zu jeder Zahl ausgegeben, was nicht gezählt wurde und warum. Mit dem Namen einer Zahl wird der ganze Text ausgegeben, das Gezählte in [eckigen Klammern], das Übrige in {geschweiften}. Mehrere Zahlen werden nacheinander erklärt.</translation>
    </message>
    <message>
        <source>explain the words</source>
        <translation>die Wörter erklären</translation>
    </message>
    <message>
        <source>explain the sentences</source>
        <translation>die Sätze erklären</translation>
    </message>
    <message>
        <source>explain the paragraphs</source>
        <translation>die Absätze erklären</translation>
    </message>
    <message>
        <source>explain the indented paragraphs</source>
        <translation>die eingerückten Absätze erklären</translation>
    </message>
    <message>
        <source>explain the lines on your paper</source>
        <translation>die Zeilen auf dem eigenen Papier erklären</translation>
    </message>
    <message>
        <source>explain the hard line breaks</source>
        <translation>die harten Zeilenumbrüche erklären</translation>
    </message>
    <message>
        <source>explain the characters without white space</source>
        <translation>die Zeichen ohne Leerraum erklären</translation>
    </message>
    <message>
        <source>explain the characters including white space</source>
        <translation>die Zeichen mit Leerraum erklären</translation>
    </message>
    <message>
        <source>print only what was not counted, with the text around it</source>
        <translation>nur ausgeben, was nicht gezählt wurde, mit dem Text darum herum</translation>
    </message>
    <message>
        <source>print a JSON object on a line of its own for each word, sentence and so on (of all counts, or of those that are named): the file, the kind of the count, the offset and length in UTF-16 code units, whether it was counted, the reason as a fixed identifier, and the text, of which at most 200 code units; a line as of &apos;quillbay count --json&apos; follows</source>
        <translation>für jedes Wort, jeden Satz und so weiter (aller Zahlen oder der genannten) ein JSON-Objekt auf einer eigenen Zeile ausgeben: die Datei, die Art der Zahl, Anfang und Länge in UTF-16-Codeeinheiten, ob es gezählt wurde, den Grund als festen Bezeichner und den Text, höchstens 200 Codeeinheiten davon; es folgt eine Zeile wie von &apos;quillbay count --json&apos;</translation>
    </message>
    <message>
        <source>read every file as plain text, whatever it is</source>
        <translation>jede Datei als reinen Text lesen, was immer sie ist</translation>
    </message>
    <message>
        <source>&apos;quillbay count --explain-rules&apos; prints the rules themselves: your preferences and your locale.</source>
        <translation>&apos;quillbay count --explain-rules&apos; gibt die Regeln selbst aus: die Einstellungen und die Locale.</translation>
    </message>
    <message>
        <source>all files were explained</source>
        <translation>alle Dateien wurden erklärt</translation>
    </message>
    <message>
        <source>a file could not be explained</source>
        <translation>eine Datei konnte nicht erklärt werden</translation>
    </message>
    <message>
        <source>find the headings that are not counted as sentences</source>
        <translation>die Überschriften finden, die nicht als Sätze zählen</translation>
    </message>
    <message>
        <source>print the text of files, as it is counted</source>
        <translation>den Text von Dateien ausgeben, wie er gezählt wird</translation>
    </message>
    <message>
        <source>Prints the text of each FILE that &apos;quillbay count&apos; counts, in UTF-8: without markup, headers and hidden text, with the notes behind the body. Without FILE, or if FILE is -, reads standard input. FILE can be of every kind that &apos;quillbay count&apos; counts.</source>
        <translation>Gibt den Text jeder Datei FILE, den &apos;quillbay count&apos; zählt, in UTF-8 aus: ohne Auszeichnungen, Kopfzeilen und verborgenen Text, mit den Anmerkungen hinter dem Haupttext. Ohne FILE, oder wenn FILE - ist, wird die Standardeingabe gelesen. FILE kann von jeder Art sein, die &apos;quillbay count&apos; zählt.</translation>
    </message>
    <message>
        <source>Nothing is added between the files. Pictures and other attachments are the character U+FFFC, which is counted. On a terminal, control characters other than tabs and line ends are escaped, as \x1b; elsewhere they are printed as they are.</source>
        <translation>Zwischen den Dateien wird nichts eingefügt. Bilder und andere Anlagen sind das Zeichen U+FFFC, das gezählt wird. Im Terminal werden Steuerzeichen außer Tabulatoren und Zeilenenden umschrieben, etwa als \x1b; sonst werden sie unverändert ausgegeben.</translation>
    </message>
    <message>
        <source>print a JSON object on a line of its own for each file: its name, its MIME type, the text, the length of the text in UTF-16 code units, and the paragraphs; each has its offset and its length without the line end, in UTF-16 code units and in bytes of UTF-8, and its counts, which add up to those of &apos;quillbay count&apos;</source>
        <translation>für jede Datei ein JSON-Objekt auf einer eigenen Zeile ausgeben: ihren Namen, ihren MIME-Typ, den Text, die Länge des Textes in UTF-16-Codeeinheiten und die Absätze; jeder hat seinen Anfang und seine Länge ohne das Zeilenende, in UTF-16-Codeeinheiten und in Bytes von UTF-8, und seine Zahlen, die zusammen die von &apos;quillbay count&apos; ergeben</translation>
    </message>
    <message>
        <source>all files were printed</source>
        <translation>alle Dateien wurden ausgegeben</translation>
    </message>
    <message>
        <source>a file could not be printed</source>
        <translation>eine Datei konnte nicht ausgegeben werden</translation>
    </message>
    <message>
        <source>count the words of a Word document as another program does</source>
        <translation>die Wörter eines Word-Dokuments zählen, wie es ein anderes Programm tut</translation>
    </message>
    <message>
        <source>on or off</source>
        <translation>on oder off</translation>
    </message>
    <message>
        <source>such as 1in, 25.4mm, 2.5cm or 72pt, at most so wide that a column of half an inch is left</source>
        <translation>etwa 1in, 25.4mm, 2.5cm oder 72pt, höchstens so breit, dass eine Spalte von einem halben Zoll bleibt</translation>
    </message>
    <message>
        <source>print and set the rules of the counts</source>
        <translation>die Regeln der Zahlen ausgeben und einstellen</translation>
    </message>
    <message>
        <source>Prints the rules of the counts, or the one called NAME; sets NAME to VALUE; or gives rules the values of a new user. Open windows show what you want at once; their numbers follow at the next count.</source>
        <translation>Gibt die Regeln der Zahlen aus oder die namens NAME; setzt NAME auf VALUE; oder gibt Regeln die Anfangswerte. Offene Fenster zeigen sofort das Gewünschte; ihre Zahlen folgen bei der nächsten Zählung.</translation>
    </message>
    <message>
        <source>Names:</source>
        <translation>Namen:</translation>
    </message>
    <message>
        <source>on or off: show the characters; also sets the next one</source>
        <translation>on oder off: die Zeichen anzeigen; setzt auch das Nächste</translation>
    </message>
    <message>
        <source>0 to 1000: paragraphs with fewer sentences are not counted</source>
        <translation>0 bis 1000: Absätze mit weniger Sätzen zählen nicht</translation>
    </message>
    <message>
        <source>on or off: count only sentences that end in a full stop, question mark or exclamation mark</source>
        <translation>on oder off: nur Sätze zählen, die mit Punkt, Frage- oder Ausrufezeichen enden</translation>
    </message>
    <message>
        <source>on or off: speak the words of a watched file when their number changes</source>
        <translation>on oder off: die Wortzahl einer beobachteten Datei vorlesen, wenn sie sich ändert</translation>
    </message>
    <message>
        <source>a paper of your printer, such as A4 or Letter</source>
        <translation>ein Papier des Druckers, etwa A4 oder Letter</translation>
    </message>
    <message>
        <source>print a JSON object; margins are in inches</source>
        <translation>ein JSON-Objekt ausgeben; Ränder in Zoll</translation>
    </message>
    <message>
        <source>reset the rules that are named</source>
        <translation>die genannten Regeln zurücksetzen</translation>
    </message>
    <message>
        <source>reset all rules</source>
        <translation>alle Regeln zurücksetzen</translation>
    </message>
    <message>
        <source>the rules were printed or stored</source>
        <translation>die Regeln wurden ausgegeben oder gespeichert</translation>
    </message>
    <message>
        <source>a rule could not be stored</source>
        <translation>eine Regel konnte nicht gespeichert werden</translation>
    </message>
    <message>
        <source>do not count headings as paragraphs</source>
        <translation>Überschriften nicht als Absätze zählen</translation>
    </message>
    <message>
        <source>use the default margins again</source>
        <translation>wieder die Standardränder verwenden</translation>
    </message>
    <message>
        <source>count text for people who write</source>
        <translation>Texte zählen für alle, die schreiben</translation>
    </message>
    <message>
        <source>Counts words, characters, sentences, lines on your paper and paragraphs by your own rules: in a terminal, or in a small window that follows a file through every save.</source>
        <translation>Zählt Wörter, Zeichen, Sätze, Zeilen auf dem eigenen Papier und Absätze nach eigenen Regeln: im Terminal oder in einem kleinen Fenster, das einer Datei durch jedes Speichern folgt.</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>Befehle:</translation>
    </message>
    <message>
        <source>print the help of a command and exit</source>
        <translation>die Hilfe eines Befehls ausgeben und beenden</translation>
    </message>
    <message>
        <source>Run &apos;quillbay help COMMAND&apos; or &apos;man quillbay-COMMAND&apos; for the options of a command.</source>
        <translation>&apos;quillbay help COMMAND&apos; oder &apos;man quillbay-COMMAND&apos; zeigt die Optionen eines Befehls.</translation>
    </message>
    <message>
        <source>everything was done</source>
        <translation>alles wurde erledigt</translation>
    </message>
    <message>
        <source>something was not done, and is reported on standard error</source>
        <translation>etwas wurde nicht erledigt und auf der Standardfehlerausgabe gemeldet</translation>
    </message>
    <message>
        <source>speak a phrase</source>
        <translation>einen Satz vorlesen</translation>
    </message>
    <message>
        <source>Speaks PHRASE, which is one argument, through the speech dispatcher of the user, or through espeak-ng if there is none. It exits when the dispatcher has accepted the phrase, or when espeak-ng has spoken it.</source>
        <translation>Liest PHRASE, ein einziges Argument, über den Speech Dispatcher des Benutzers vor oder, wenn es keinen gibt, über espeak-ng. Es endet, wenn der Dispatcher den Satz angenommen oder espeak-ng ihn gesprochen hat.</translation>
    </message>
    <message>
        <source>Quillbay speaks the number of words of a watched file through /usr/bin/say. Quillbay&apos;s package makes that name an alternative for this program, unless another package owns it.</source>
        <translation>Quillbay liest die Wortzahl einer beobachteten Datei über /usr/bin/say vor. Das Paket von Quillbay macht diesen Namen zu einer Alternative für dieses Programm, sofern er keinem anderen Paket gehört.</translation>
    </message>
    <message>
        <source>the phrase is spoken</source>
        <translation>der Satz wird vorgelesen</translation>
    </message>
    <message>
        <source>neither of the two programs could speak it</source>
        <translation>keines der beiden Programme konnte ihn vorlesen</translation>
    </message>
    <message>
        <source>show the counts of the text selected in any application</source>
        <translation>die Zahlen des Textes zeigen, der in irgendeiner Anwendung ausgewählt ist</translation>
    </message>
    <message>
        <source>Opens a small window with the counts of the text that is selected in any application. Meant for a keyboard shortcut: errors are reported in a desktop notification as well as on standard error.</source>
        <translation>Öffnet ein kleines Fenster mit den Zahlen des Textes, der in irgendeiner Anwendung ausgewählt ist. Gedacht für ein Tastenkürzel: Fehler werden auch in einer Benachrichtigung des Desktops gemeldet, nicht nur auf der Standardfehlerausgabe.</translation>
    </message>
    <message>
        <source>use the text that was copied last instead</source>
        <translation>stattdessen den zuletzt kopierten Text nehmen</translation>
    </message>
    <message>
        <source>the window has opened</source>
        <translation>das Fenster ist offen</translation>
    </message>
    <message>
        <source>the window could not be opened</source>
        <translation>das Fenster konnte nicht geöffnet werden</translation>
    </message>
    <message>
        <source>count documents for Quillbay&apos;s windows</source>
        <translation>Dokumente für die Fenster von Quillbay zählen</translation>
    </message>
    <message>
        <source>Counts documents for other programs. The session bus starts it for the first request to Brisklane.QBYServiceProviderXPC; it exits when it has been idle for a while.</source>
        <translation>Zählt Dokumente für andere Programme. Der Sitzungsbus startet es bei der ersten Anfrage an Brisklane.QBYServiceProviderXPC; es endet, wenn es eine Weile nichts zu tun hatte.</translation>
    </message>
    <message>
        <source>The documents are read by processes of their own, which are sandboxed before they receive one. Where systemd manages the session, the unit quillbay-counting-service.service limits all of them together.</source>
        <translation>Die Dokumente werden von eigenen Prozessen gelesen, die abgeschottet werden, bevor sie eines erhalten. Wo systemd die Sitzung verwaltet, begrenzt die Unit quillbay-counting-service.service alle zusammen.</translation>
    </message>
    <message>
        <source>exit after being idle for this long (default: 60000)</source>
        <translation>nach so langer Untätigkeit beenden (Standard: 60000)</translation>
    </message>
    <message>
        <source>it was idle, or was told to stop</source>
        <translation>es war untätig oder wurde angehalten</translation>
    </message>
    <message>
        <source>the service could not be offered on the session bus</source>
        <translation>der Dienst konnte auf dem Sitzungsbus nicht angeboten werden</translation>
    </message>
    <message>
        <source>show Quillbay&apos;s windows with counts</source>
        <translation>die Fenster von Quillbay mit Zahlen zeigen</translation>
    </message>
    <message>
        <source>Shows the windows with the counts of selected texts and of watched files. The session bus starts it for the first request to com.quillbay.ServiceProvider, as &apos;quillbay text&apos; and &apos;quillbay watch&apos; send it; it exits when the last window is closed.</source>
        <translation>Zeigt die Fenster mit den Zahlen ausgewählter Texte und beobachteter Dateien. Der Sitzungsbus startet es bei der ersten Anfrage an com.quillbay.ServiceProvider, wie &apos;quillbay text&apos; und &apos;quillbay watch&apos; sie senden; es endet, wenn das letzte Fenster geschlossen wird.</translation>
    </message>
    <message>
        <source>no window is left, or the session has ended</source>
        <translation>kein Fenster ist mehr offen, oder die Sitzung ist beendet</translation>
    </message>
    <message>
        <source>there is no display, or the services could not be offered</source>
        <translation>es gibt keinen Bildschirm, oder die Dienste konnten nicht angeboten werden</translation>
    </message>
    <message>
        <source>the connection to the X server was lost</source>
        <translation>die Verbindung zum X-Server ging verloren</translation>
    </message>
    <message>
        <source>read one document in a sandbox</source>
        <translation>ein Dokument in einer Sandbox lesen</translation>
    </message>
    <message>
        <source>Reads one document for another program of Quillbay, which starts it. It receives the document in memory and can open no file and no connection; its memory and time are limited in proportion to the document.</source>
        <translation>Liest ein Dokument für ein anderes Programm von Quillbay, das es startet. Es erhält das Dokument im Speicher und kann weder Dateien noch Verbindungen öffnen; Speicher und Zeit sind im Verhältnis zum Dokument begrenzt.</translation>
    </message>
    <message>
        <source>the document was read, or none was sent</source>
        <translation>das Dokument wurde gelesen, oder es kam keines</translation>
    </message>
    <message>
        <source>keep what you copied from Quillbay&apos;s windows</source>
        <translation>behalten, was aus den Fenstern von Quillbay kopiert wurde</translation>
    </message>
    <message>
        <source>Takes over what you have copied from a window of Quillbay when the last one is closed, and hands it to the clipboard manager of the desktop. Without a manager it keeps the content until another program copies something or the display closes.</source>
        <translation>Übernimmt beim Schließen des letzten Fensters von Quillbay, was daraus kopiert wurde, und übergibt es der Zwischenablageverwaltung des Desktops. Ohne eine solche behält es den Inhalt, bis ein anderes Programm etwas kopiert oder die Sitzung endet.</translation>
    </message>
    <message>
        <source>the content is saved, or was replaced</source>
        <translation>der Inhalt ist gesichert oder wurde ersetzt</translation>
    </message>
    <message>
        <source>there was nothing to take over</source>
        <translation>es gab nichts zu übernehmen</translation>
    </message>
    <message>
        <source>show the counts of what another program prints</source>
        <translation>die Zahlen dessen zeigen, was ein anderes Programm ausgibt</translation>
    </message>
    <message>
        <source>show the counts of files, and update them at every save</source>
        <translation>die Zahlen von Dateien zeigen und bei jedem Speichern aktualisieren</translation>
    </message>
    <message>
        <source>watch the files that were copied last in a file manager</source>
        <translation>die zuletzt in einem Dateimanager kopierten Dateien beobachten</translation>
    </message>
    <message>
        <source>the windows have opened</source>
        <translation>die Fenster sind offen</translation>
    </message>
    <message>
        <source>a file cannot be watched</source>
        <translation>eine Datei lässt sich nicht beobachten</translation>
    </message>
    <message>
        <source>Counts the words, characters, sentences, lines on your paper, hard line breaks, paragraphs and indented paragraphs of each FILE by your preferences. Without FILE, or if FILE is -, reads standard input. A pipe that a shell passes by name is read in the same way.</source>
        <translation>Zählt nach den eigenen Einstellungen die Wörter, Zeichen, Sätze, Zeilen auf dem eigenen Papier, harten Zeilenumbrüche, Absätze und eingerückten Absätze jeder Datei FILE. Ohne FILE, oder wenn FILE - ist, wird die Standardeingabe gelesen. Ebenso wird eine Pipe gelesen, die eine Shell mit ihrem Namen übergibt.</translation>
    </message>
    <message>
        <source>instead of the counts, print what they depend on: locale, preferences, paper, margins, and the fonts that the files need (without a file, the font of plain text); with --json an object, whose lengths are in points</source>
        <translation>statt der Zahlen ausgeben, wovon sie abhängen: Locale, Einstellungen, Papier, Ränder und die Schriften, die die Dateien brauchen (ohne Datei die Schrift reinen Textes); mit --json ein Objekt, dessen Längen in Punkt sind</translation>
    </message>
    <message>
        <source>Control characters in names are escaped: as \x1b in the table and as \u001b in JSON. With --tsv, tabs, line feeds, carriage returns and backslashes become \t, \n, \r and \\; other control characters and bytes that are not valid UTF-8 become one \x1b per byte. In JSON, a name that is not valid UTF-8 has U+FFFD in place of such bytes, and the member &quot;url&quot; beside it has them percent-encoded, as a file: URL.</source>
        <translation>Steuerzeichen in Namen werden umschrieben: als \x1b in der Tabelle und als \u001b in JSON. Mit --tsv werden Tabulatoren, Zeilenvorschübe, Wagenrückläufe und umgekehrte Schrägstriche zu \t, \n, \r und \\; andere Steuerzeichen und Bytes, die kein gültiges UTF-8 sind, werden zu einem \x1b pro Byte. In JSON hat ein Name, der kein gültiges UTF-8 ist, U+FFFD anstelle solcher Bytes, und der Eintrag &quot;url&quot; daneben enthält sie prozentkodiert, als file:-URL.</translation>
    </message>
    <message>
        <source>watch the files as &apos;quillbay watch&apos; does; without FILE, choose them in a dialog</source>
        <translation>die Dateien wie &apos;quillbay watch&apos; beobachten; ohne FILE in einem Dialog auswählen</translation>
    </message>
    <message>
        <source>Tries what Quillbay needs of this computer and of the desktop, and prints a line for each: ok, note (worth knowing), limited or broken, the name of the check, what it has found, and what to do about it. It starts the programs of Quillbay as the other commands do, opens no window, and waits a few seconds at most for what does not answer.</source>
        <translation>Probiert, was Quillbay von diesem Rechner und vom Desktop braucht, und gibt je eine Zeile aus: ok, note (wissenswert), limited oder broken, den Namen der Prüfung, was sie gefunden hat und was zu tun ist. Es startet die Programme von Quillbay wie die anderen Befehle, öffnet kein Fenster und wartet höchstens einige Sekunden auf das, was nicht antwortet.</translation>
    </message>
    <message>
        <source>The output names no document, and your home folder is ~ in it, so that you can paste it into a report of a fault.</source>
        <translation>Die Ausgabe nennt kein Dokument, und der eigene Ordner heißt darin ~, sodass sie sich in eine Fehlermeldung einfügen lässt.</translation>
    </message>
    <message>
        <source>print a JSON object with the worst severity and a list of the findings: the name of each check, its severity, the text and the remedy</source>
        <translation>ein JSON-Objekt mit der schlimmsten Stufe und einer Liste der Befunde ausgeben: den Namen jeder Prüfung, ihre Stufe, den Text und die Abhilfe</translation>
    </message>
    <message>
        <source>everything works</source>
        <translation>alles funktioniert</translation>
    </message>
    <message>
        <source>something is limited</source>
        <translation>etwas ist eingeschränkt</translation>
    </message>
    <message>
        <source>something is broken</source>
        <translation>etwas ist defekt</translation>
    </message>
    <message>
        <source>Opens a small window for each FILE, whose counts follow every save, or raises the window that FILE already has. Watches every kind of file that &apos;quillbay count&apos; counts; the others are reported on standard error and in a desktop notification, and skipped.</source>
        <translation>Öffnet für jede Datei FILE ein kleines Fenster, dessen Zahlen jedem Speichern folgen, oder hebt das Fenster hervor, das FILE schon hat. Beobachtet jede Art von Datei, die &apos;quillbay count&apos; zählt; die anderen werden auf der Standardfehlerausgabe und in einer Benachrichtigung des Desktops gemeldet und übergangen.</translation>
    </message>
    <message>
        <source>print what works on this desktop, and how to mend the rest</source>
        <translation>ausgeben, was auf diesem Desktop geht und wie der Rest zu beheben ist</translation>
    </message>
    <message>
        <source>show the counts of files or of standard input</source>
        <translation>die Zahlen von Dateien oder der Standardeingabe zeigen</translation>
    </message>
    <message>
        <source>Opens a small window with the counts of each FILE. Without FILE, or if FILE is -, reads standard input. FILE can be of every kind that &apos;quillbay count&apos; counts, or the URL of a file on this computer. Files that cannot be counted are reported and skipped, in a desktop notification too.</source>
        <translation>Öffnet für jede Datei FILE ein kleines Fenster mit ihren Zahlen. Ohne FILE, oder wenn FILE - ist, wird die Standardeingabe gelesen. FILE kann von jeder Art sein, die &apos;quillbay count&apos; zählt, oder die URL einer Datei auf diesem Rechner. Dateien, die sich nicht zählen lassen, werden gemeldet und übergangen, auch in einer Benachrichtigung des Desktops.</translation>
    </message>
    <message>
        <source>all windows have opened</source>
        <translation>alle Fenster sind offen</translation>
    </message>
    <message>
        <source>a window could not be opened</source>
        <translation>ein Fenster konnte nicht geöffnet werden</translation>
    </message>
    <message>
        <source>also print these counts, separated by commas: pages, standard-pages, reading-time, speaking-time, graphemes; none prints none of them; without this option, those that your preferences show</source>
        <translation>auch diese Zahlen ausgeben, durch Kommas getrennt: pages, standard-pages, reading-time, speaking-time, graphemes; none gibt keine davon aus; ohne diese Option die, die die Einstellungen zeigen</translation>
    </message>
    <message>
        <source>count in the counting service, in a sandboxed process, as Quillbay&apos;s windows do; the counts are the same; pages and graphemes are not counted there</source>
        <translation>im Zähldienst zählen, in einem Prozess in einer Sandbox, wie die Fenster von Quillbay; die Zahlen sind dieselben; Seiten und Grapheme werden dort nicht gezählt</translation>
    </message>
    <message>
        <source>Pages are sheets of your paper, filled with the lines of the text between the top and bottom margins. Standard pages are the characters or words divided by the size that you prefer. Reading and speaking times follow from the words and your speeds; JSON and TSV have them in seconds. Graphemes are the characters that a reader sees, white space included.</source>
        <translation>Seiten sind Blätter des eigenen Papiers, zwischen dem oberen und dem unteren Rand mit den Zeilen des Textes gefüllt. Normseiten sind die Zeichen oder Wörter, geteilt durch die eingestellte Größe. Lese- und Sprechzeit ergeben sich aus den Wörtern und den eingestellten Geschwindigkeiten; JSON und TSV enthalten sie in Sekunden. Grapheme sind die Zeichen, die man beim Lesen sieht, mit Leerraum.</translation>
    </message>
    <message>
        <source>print the pages and the time to read it, too</source>
        <translation>auch die Seiten und die Lesezeit ausgeben</translation>
    </message>
    <message>
        <source>20 to 2000 words per minute</source>
        <translation>20 bis 2000 Wörter pro Minute</translation>
    </message>
    <message>
        <source>such as &apos;1800 characters&apos; or &apos;250 words&apos;; white space counts</source>
        <translation>zum Beispiel &apos;1800 characters&apos; oder &apos;250 words&apos;; Leerraum zählt mit</translation>
    </message>
    <message>
        <source>list the documents that you keep an eye on</source>
        <translation>die Dokumente im Blick auflisten</translation>
    </message>
    <message>
        <source>Adds each FILE to the list of documents, which the page Documents of the main window shows, too. Without FILE, prints their paths.</source>
        <translation>Nimmt jede FILE in die Liste der Dokumente auf, die auch die Seite Dokumente des Hauptfensters zeigt. Gibt ohne FILE die Pfade aus.</translation>
    </message>
    <message>
        <source>The counts of a listed document are kept after every save, so that &apos;quillbay status&apos; knows what today brought, and &apos;quillbay history&apos; each day. Nothing of its text is kept.</source>
        <translation>Die Zahlen eines Dokuments der Liste werden nach jedem Speichern aufgehoben, damit &apos;quillbay status&apos; weiß, was der heutige Tag gebracht hat, und &apos;quillbay history&apos;, was jeder Tag. Vom Text wird nichts aufgehoben.</translation>
    </message>
    <message>
        <source>remove each FILE from the list, and forget its goal and its history</source>
        <translation>jede FILE aus der Liste entfernen, Ziel und Verlauf vergessen</translation>
    </message>
    <message>
        <source>the list was printed or stored</source>
        <translation>die Liste wurde ausgegeben oder gespeichert</translation>
    </message>
    <message>
        <source>a file is missing, or the list cannot be read or stored</source>
        <translation>eine Datei fehlt, oder die Liste lässt sich nicht lesen oder speichern</translation>
    </message>
    <message>
        <source>keep an eye on all chapters of a novel</source>
        <translation>alle Kapitel eines Romans im Blick behalten</translation>
    </message>
    <message>
        <source>set a goal or a limit for a document or a folder</source>
        <translation>ein Ziel oder eine Grenze für ein Dokument oder einen Ordner setzen</translation>
    </message>
    <message>
        <source>Sets the goal of FILE to NUMBER words, in all or for each day; or the limit, which is reported when it is passed. Without NUMBER, prints both. A folder has the documents of the list that are directly in it.</source>
        <translation>Setzt das Ziel von FILE auf NUMBER Wörter, insgesamt oder für jeden Tag; oder die Grenze, die beim Überschreiten gemeldet wird. Gibt ohne NUMBER beide aus. Zu einem Ordner gehören die Dokumente der Liste, die direkt darin liegen.</translation>
    </message>
    <message>
        <source>What is deleted counts against the goal for a day. With --added-only it does not: what is added between two saves counts, and what is deleted is left aside.</source>
        <translation>Was gelöscht wird, geht vom Ziel eines Tages ab. Mit --added-only nicht: Dann zählt, was zwischen zwei Speicherungen dazukommt, und Gelöschtes bleibt außer Betracht.</translation>
    </message>
    <message>
        <source>count words (the default), characters, all-characters or lines</source>
        <translation>words (Standard), characters, all-characters oder lines zählen</translation>
    </message>
    <message>
        <source>reach the goal until DATE, such as 2026-11-30</source>
        <translation>das Ziel bis DATE erreichen, etwa 2026-11-30</translation>
    </message>
    <message>
        <source>the goal is for each day, from midnight</source>
        <translation>das Ziel gilt für jeden Tag ab Mitternacht</translation>
    </message>
    <message>
        <source>do not subtract what is deleted</source>
        <translation>Gelöschtes nicht abziehen</translation>
    </message>
    <message>
        <source>set or remove the limit</source>
        <translation>die Grenze setzen oder entfernen</translation>
    </message>
    <message>
        <source>remove the goal or the limit</source>
        <translation>das Ziel oder die Grenze entfernen</translation>
    </message>
    <message>
        <source>the goal was printed or stored</source>
        <translation>das Ziel wurde ausgegeben oder gespeichert</translation>
    </message>
    <message>
        <source>the goal cannot be read or stored</source>
        <translation>das Ziel lässt sich nicht lesen oder speichern</translation>
    </message>
    <message>
        <source>write 50,000 words in a folder until 30 November</source>
        <translation>bis zum 30. November 50.000 Wörter in einem Ordner schreiben</translation>
    </message>
    <message>
        <source>be told when an abstract has more than 5,000 characters</source>
        <translation>erfahren, wenn eine Zusammenfassung mehr als 5.000 Zeichen hat</translation>
    </message>
    <message>
        <source>print what each day brought to a document</source>
        <translation>ausgeben, was jeder Tag einem Dokument gebracht hat</translation>
    </message>
    <message>
        <source>Prints for each day how many words FILE had at its end, by how many it changed, and how many were added without those that were deleted. FILE is in the list of &apos;quillbay documents&apos;.</source>
        <translation>Gibt für jeden Tag aus, wie viele Wörter FILE an seinem Ende hatte, um wie viele es sich änderte und wie viele dazukamen, ohne Abzug der gelöschten. FILE ist in der Liste von &apos;quillbay documents&apos;.</translation>
    </message>
    <message>
        <source>The counts of a document are kept once a minute at most, and once a day after a year.</source>
        <translation>Die Zahlen eines Dokuments werden höchstens einmal je Minute aufgehoben, nach einem Jahr einmal je Tag.</translation>
    </message>
    <message>
        <source>print all counts that are kept, separated by commas</source>
        <translation>alle aufgehobenen Zahlen ausgeben, durch Kommas getrennt</translation>
    </message>
    <message>
        <source>print a JSON object for each count that is kept</source>
        <translation>für jede aufgehobene Zählung ein JSON-Objekt ausgeben</translation>
    </message>
    <message>
        <source>forget all counts but the last</source>
        <translation>alle Zahlen außer den letzten vergessen</translation>
    </message>
    <message>
        <source>keep the history of all documents, or only what the changes of the day need</source>
        <translation>den Verlauf aller Dokumente aufheben, oder nur, was die Änderungen des Tages brauchen</translation>
    </message>
    <message>
        <source>the history was printed or forgotten</source>
        <translation>der Verlauf wurde ausgegeben oder vergessen</translation>
    </message>
    <message>
        <source>there is no history of FILE, or it cannot be read or forgotten</source>
        <translation>es gibt keinen Verlauf von FILE, oder er lässt sich nicht lesen oder vergessen</translation>
    </message>
    <message>
        <source>print your documents, what today brought, and their goals</source>
        <translation>die Dokumente ausgeben, was der Tag gebracht hat, und ihre Ziele</translation>
    </message>
    <message>
        <source>Prints the words of each document in the list of &apos;quillbay documents&apos;, by how many they have changed since midnight, and what its goal still needs. Counts what was saved since the last time; what has not changed is not read.</source>
        <translation>Gibt die Wörter jedes Dokuments in der Liste von &apos;quillbay documents&apos; aus, um wie viele sie sich seit Mitternacht geändert haben und was seinem Ziel noch fehlt. Zählt, was seit dem letzten Mal gespeichert wurde; was sich nicht geändert hat, wird nicht gelesen.</translation>
    </message>
    <message>
        <source>print a JSON object with all statistics, for panels and scripts</source>
        <translation>ein JSON-Objekt mit allen Zahlen ausgeben, für Leisten und Skripte</translation>
    </message>
    <message>
        <source>all documents were counted</source>
        <translation>alle Dokumente wurden gezählt</translation>
    </message>
    <message>
        <source>a document could not be counted</source>
        <translation>ein Dokument ließ sich nicht zählen</translation>
    </message>
    <message>
        <source>read plain text as Markdown, without its marks, front matter, comments, code blocks and link targets</source>
        <translation>reinen Text als Markdown lesen, ohne seine Auszeichnung, Metadaten am Anfang, Kommentare, Codeblöcke und Linkziele</translation>
    </message>
    <message>
        <source>read plain text as LaTeX, without its commands, formulas, comments, listings and references; with --markdown, only files named .tex, .ltx or .latex</source>
        <translation>reinen Text als LaTeX lesen, ohne seine Befehle, Formeln, Kommentare, Listings und Verweise; mit --markdown nur Dateien namens .tex, .ltx oder .latex</translation>
    </message>
    <message>
        <source>count the words that a reader of the pages sees</source>
        <translation>die Wörter zählen, die man beim Lesen der Seiten sieht</translation>
    </message>
    <message>
        <source>count words and characters as PROGRAM does: libreoffice (LibreOffice Writer), word-processor (words between white space) or quillbay</source>
        <translation>Wörter und Zeichen zählen wie PROGRAM: libreoffice (LibreOffice Writer), word-processor (Wörter zwischen Leerraum) oder quillbay</translation>
    </message>
    <message>
        <source>count a hyphenated word as one, or its parts as several</source>
        <translation>ein Wort mit Bindestrich als eines zählen (one) oder seine Teile einzeln (several)</translation>
    </message>
    <message>
        <source>count each web address as one word, or none</source>
        <translation>jede Webadresse als ein Wort zählen (one) oder gar nicht (none)</translation>
    </message>
    <message>
        <source>each of these characters ends a word, too</source>
        <translation>auch jedes dieser Zeichen beendet ein Wort</translation>
    </message>
    <message>
        <source>print only these counts, in this order, separated by commas: words, characters, all-characters, sentences, lines, hard-line-breaks, paragraphs, indents, and those of --also</source>
        <translation>nur diese Zahlen ausgeben, in dieser Reihenfolge, durch Kommas getrennt: words, characters, all-characters, sentences, lines, hard-line-breaks, paragraphs, indents und die von --also</translation>
    </message>
    <message>
        <source>print the files with the largest COUNT first, such as words; or by name, with name</source>
        <translation>die Dateien mit der größten Zahl COUNT zuerst ausgeben, etwa words; oder nach Namen, mit name</translation>
    </message>
    <message>
        <source>compare all files together with a number of words, or with another count, such as &apos;5000 characters&apos;; the table ends with what remains</source>
        <translation>alle Dateien zusammen mit einer Anzahl von Wörtern vergleichen oder mit einer anderen Zahl, etwa &apos;5000 characters&apos;; die Tabelle endet mit dem, was fehlt</translation>
    </message>
    <message>
        <source>count the files below each FILE that is a folder, or below this folder, but not what a .gitignore ignores, symbolic links, and what is no text</source>
        <translation>die Dateien unter jeder FILE zählen, die ein Ordner ist, oder unter diesem Ordner, aber nicht, was eine .gitignore ausnimmt, keine symbolischen Verknüpfungen und nichts, was kein Text ist</translation>
    </message>
    <message>
        <source>with --recursive, count only files with such a name, as &apos;*.md&apos;; can be given several times</source>
        <translation>mit --recursive nur Dateien mit einem solchen Namen zählen, etwa &apos;*.md&apos;; kann mehrmals angegeben werden</translation>
    </message>
    <message>
        <source>the goal has not been reached</source>
        <translation>das Ziel ist nicht erreicht</translation>
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
    <name>ShortcutPage</name>
    <message>
        <source>&amp;Count the selected text of any application when I press keys</source>
        <translation>Ausgewählten Text jeder Anwendung auf Tastendruck &amp;zählen</translation>
    </message>
    <message>
        <source>&amp;Keys:</source>
        <translation>&amp;Tasten:</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>The keys are stored in the settings of your desktop. You can change them there too.</source>
        <translation>Die Tasten stehen in den Einstellungen der Arbeitsumgebung und lassen sich auch dort ändern.</translation>
    </message>
    <message>
        <source>Quillbay cannot change the shortcuts of this desktop. To count the selected text of any application when you press keys, bind this &amp;command to them in the desktop&apos;s own settings:</source>
        <translation>Quillbay kann die Tastenkürzel dieser Arbeitsumgebung nicht ändern. Um ausgewählten Text jeder Anwendung auf Tastendruck zu zählen, diesen &amp;Befehl in den Einstellungen der Arbeitsumgebung mit Tasten verbinden:</translation>
    </message>
    <message>
        <source>Click the keys, then press Ctrl, Alt or Meta together with another key.</source>
        <translation>In das Feld mit den Tasten klicken, dann Strg, Alt oder Meta zusammen mit einer anderen Taste drücken.</translation>
    </message>
    <message>
        <source>The settings of %1 cannot be used: %2.</source>
        <translation>Die Einstellungen von %1 lassen sich nicht verwenden: %2.</translation>
    </message>
    <message>
        <source>%1 is used for “%2” in %3, so it was not changed. Choose other keys.</source>
        <translation>%1 ist in %3 schon mit „%2“ belegt und bleibt unverändert. Bitte andere Tasten wählen.</translation>
    </message>
    <message>
        <source>No keys count the selected text.</source>
        <translation>Kein Tastenkürzel zählt den ausgewählten Text.</translation>
    </message>
    <message>
        <source>Select text anywhere and press %1.</source>
        <translation>Irgendwo Text auswählen und %1 drücken.</translation>
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
    <name>command</name>
    <message>
        <source>missing argument for option &apos;%1&apos;</source>
        <translation>der Option &apos;%1&apos; fehlt ihr Argument</translation>
    </message>
    <message>
        <source>invalid option &apos;%1&apos;</source>
        <translation>ungültige Option &apos;%1&apos;</translation>
    </message>
    <message>
        <source>Try &apos;%1 --help&apos; for more.</source>
        <translation>&apos;%1 --help&apos; zeigt mehr.</translation>
    </message>
    <message>
        <source>--json and --tsv cannot be combined</source>
        <translation>--json und --tsv schließen sich aus</translation>
    </message>
    <message>
        <source>--files-from can be given only once</source>
        <translation>--files-from darf nur einmal vorkommen</translation>
    </message>
    <message>
        <source>--service and --explain-rules cannot be combined</source>
        <translation>--service und --explain-rules schließen sich aus</translation>
    </message>
    <message>
        <source>--explain-rules prints a table or, with --json, an object; leave out --tsv</source>
        <translation>--explain-rules gibt eine Tabelle aus oder mit --json ein Objekt; --tsv weglassen</translation>
    </message>
    <message>
        <source>standard input cannot be both a document and the list of files</source>
        <translation>die Standardeingabe kann nicht zugleich Dokument und Liste der Dateien sein</translation>
    </message>
    <message>
        <source>standard output</source>
        <translation>Standardausgabe</translation>
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
        <source>+Whitespace</source>
        <translation>+Leerraum</translation>
    </message>
    <message>
        <source>Sentences</source>
        <translation>Sätze</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Zeilen</translation>
    </message>
    <message>
        <source>Hard breaks</source>
        <translation>Umbrüche</translation>
    </message>
    <message>
        <source>Paragraphs</source>
        <translation>Absätze</translation>
    </message>
    <message>
        <source>Indented</source>
        <translation>Eingerückt</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>total</source>
        <translation>gesamt</translation>
    </message>
    <message>
        <source>%1 points</source>
        <translation>%1 Punkt</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Spalte</translation>
    </message>
    <message>
        <source>Locale</source>
        <translation>Locale</translation>
    </message>
    <message>
        <source>Sentences end in punctuation</source>
        <translation>Sätze enden mit einem Satzzeichen</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nein</translation>
    </message>
    <message>
        <source>Sentences of a paragraph, at least</source>
        <translation>Sätze eines Absatzes, mindestens</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>of the print settings</source>
        <translation>aus den Druckeinstellungen</translation>
    </message>
    <message>
        <source>Paper width</source>
        <translation>Breite des Papiers</translation>
    </message>
    <message>
        <source>Paper height</source>
        <translation>Höhe des Papiers</translation>
    </message>
    <message>
        <source>Left margin</source>
        <translation>Linker Rand</translation>
    </message>
    <message>
        <source>Right margin</source>
        <translation>Rechter Rand</translation>
    </message>
    <message>
        <source>none: the margins leave no width</source>
        <translation>keine: die Ränder lassen keine Breite</translation>
    </message>
    <message>
        <source>Pixels per point</source>
        <translation>Pixel pro Punkt</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Schrift</translation>
    </message>
    <message>
        <source>none: lines are measured with a fixed character width</source>
        <translation>keine: Zeilen werden mit fester Zeichenbreite gemessen</translation>
    </message>
    <message>
        <source>doctor takes no file</source>
        <translation>doctor nimmt keine Datei</translation>
    </message>
    <message>
        <source>%1: cannot be written (%2), so the default rules apply; make the folder writable to set your own</source>
        <translation>%1: lässt sich nicht schreiben (%2), daher gelten die Standardregeln; für eigene Regeln den Ordner beschreibbar machen</translation>
    </message>
    <message>
        <source>not counted: %1</source>
        <translation>nicht gezählt: %1</translation>
    </message>
    <message>
        <source>unknown command &apos;%1&apos;</source>
        <translation>unbekannter Befehl &apos;%1&apos;</translation>
    </message>
    <message>
        <source>one command at a time</source>
        <translation>nur ein Befehl auf einmal</translation>
    </message>
    <message>
        <source>no command given</source>
        <translation>kein Befehl angegeben</translation>
    </message>
    <message>
        <source>not counted: %1 and %2 more: %3</source>
        <translation>nicht gezählt: %1 und %2 weitere: %3</translation>
    </message>
    <message>
        <source>not counted: %1: %2</source>
        <translation>nicht gezählt: %1: %2</translation>
    </message>
    <message>
        <source>no preference is called &apos;%1&apos;; &apos;quillbay preferences&apos; lists them</source>
        <translation>keine Einstellung heißt &apos;%1&apos;; &apos;quillbay preferences&apos; nennt alle</translation>
    </message>
    <message>
        <source>%1: cannot be written: %2; check the permissions and the free space of its folder</source>
        <translation>%1: lässt sich nicht schreiben: %2; die Rechte und den freien Platz des Ordners prüfen</translation>
    </message>
    <message>
        <source>its default is unknown while the printer does not answer; retry later</source>
        <translation>sein Standardwert ist unbekannt, solange der Drucker nicht antwortet; später erneut versuchen</translation>
    </message>
    <message>
        <source>--reset and --reset-all cannot be combined</source>
        <translation>--reset und --reset-all schließen sich aus</translation>
    </message>
    <message>
        <source>--json only prints</source>
        <translation>--json gibt nur aus</translation>
    </message>
    <message>
        <source>--reset needs a name</source>
        <translation>--reset braucht einen Namen</translation>
    </message>
    <message>
        <source>--reset-all takes no names</source>
        <translation>--reset-all nimmt keine Namen</translation>
    </message>
    <message>
        <source>one name and one value at a time</source>
        <translation>nur ein Name und ein Wert auf einmal</translation>
    </message>
    <message>
        <source>%1 is neither on nor off; use one of them</source>
        <translation>%1 ist weder on noch off; eines davon angeben</translation>
    </message>
    <message>
        <source>%1 is not a length; use one such as 1in, 25.4mm, 2.5cm or 72pt</source>
        <translation>%1 ist keine Länge; eine wie 1in, 25.4mm, 2.5cm oder 72pt angeben</translation>
    </message>
    <message>
        <source>%1 leaves no column on the page; use at most %2in</source>
        <translation>%1 lässt keine Spalte auf der Seite; höchstens %2in angeben</translation>
    </message>
    <message>
        <source>%1 is no paper of your printer; use one of %2</source>
        <translation>%1 ist kein Papier des Druckers; möglich sind %2</translation>
    </message>
    <message>
        <source>%1 is no common paper, and no printer answers; use one of %2</source>
        <translation>%1 ist kein gängiges Papier, und kein Drucker antwortet; möglich sind %2</translation>
    </message>
    <message>
        <source>the margins of %1in and %2in leave no column on %3; make them smaller first</source>
        <translation>die Ränder von %1in und %2in lassen auf %3 keine Spalte; zuerst verkleinern</translation>
    </message>
    <message>
        <source>reading standard input; Ctrl+D on an empty line ends it</source>
        <translation>die Standardeingabe wird gelesen; Strg+D in einer leeren Zeile beendet sie</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>Standardeingabe</translation>
    </message>
    <message>
        <source>counting %1</source>
        <translation>Zählen: %1</translation>
    </message>
    <message>
        <source>reading %1</source>
        <translation>Lesen: %1</translation>
    </message>
    <message>
        <source>selection takes no file; use &apos;quillbay text FILE&apos;</source>
        <translation>selection nimmt keine Datei; stattdessen &apos;quillbay text FILE&apos; verwenden</translation>
    </message>
    <message>
        <source>there is no display for the window; run this in a terminal of your desktop, or use &apos;quillbay count&apos;, which needs none</source>
        <translation>es gibt keinen Bildschirm für das Fenster; in einem Terminal des Desktops ausführen oder &apos;quillbay count&apos; verwenden, das keinen braucht</translation>
    </message>
    <message>
        <source>there is no session bus, which opens the window; log in to a desktop, or use &apos;quillbay count&apos;, which needs none</source>
        <translation>es gibt keinen Sitzungsbus, der das Fenster öffnet; an einem Desktop anmelden oder &apos;quillbay count&apos; verwenden, das keinen braucht</translation>
    </message>
    <message>
        <source>%1; run &apos;quillbay doctor&apos; to find out why</source>
        <translation>%1; &apos;quillbay doctor&apos; findet heraus, warum</translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <translation>%1: %2.</translation>
    </message>
    <message>
        <source>the copied files are not on this computer; copy them here and watch the copies</source>
        <translation>die kopierten Dateien liegen nicht auf diesem Rechner; hierher kopieren und die Kopien beobachten</translation>
    </message>
    <message>
        <source>either --clipboard or files, not both</source>
        <translation>entweder --clipboard oder Dateien, nicht beides</translation>
    </message>
    <message>
        <source>no file given</source>
        <translation>keine Datei angegeben</translation>
    </message>
    <message>
        <source>Another file is left out too.</source>
        <translation>Eine weitere Datei bleibt auch aus.</translation>
    </message>
    <message>
        <source>%1 other files are left out too.</source>
        <translation>%1 weitere Dateien bleiben auch aus.</translation>
    </message>
    <message>
        <source>--also knows no &apos;%1&apos;; use none, or some of %2</source>
        <translation>--also kennt &apos;%1&apos; nicht; none verwenden oder einige von %2</translation>
    </message>
    <message>
        <source>--service does not count %1; leave out one of them</source>
        <translation>--service zählt %1 nicht; eines von beiden weglassen</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Standard pages</source>
        <translation>Normseiten</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>Lesezeit</translation>
    </message>
    <message>
        <source>Speaking</source>
        <translation>Sprechzeit</translation>
    </message>
    <message>
        <source>Graphemes</source>
        <translation>Grapheme</translation>
    </message>
    <message>
        <source>%1 is not a number from %2 to %3; use one</source>
        <translation>%1 ist keine Zahl von %2 bis %3; eine solche angeben</translation>
    </message>
    <message>
        <source>%1 is no standard page; use one such as &apos;1800 characters&apos; or &apos;250 words&apos;</source>
        <translation>%1 ist keine Normseite; eine verwenden wie &apos;1800 characters&apos; oder &apos;250 words&apos;</translation>
    </message>
    <message>
        <source>Top margin</source>
        <translation>Oberer Rand</translation>
    </message>
    <message>
        <source>Bottom margin</source>
        <translation>Unterer Rand</translation>
    </message>
    <message>
        <source>Standard page</source>
        <translation>Normseite</translation>
    </message>
    <message>
        <source>Words read per minute</source>
        <translation>Gelesene Wörter pro Minute</translation>
    </message>
    <message>
        <source>Words spoken per minute</source>
        <translation>Gesprochene Wörter pro Minute</translation>
    </message>
    <message>
        <source>%1: there is no such file; check its name</source>
        <translation>%1: diese Datei gibt es nicht; bitte den Namen prüfen</translation>
    </message>
    <message>
        <source>the list is full; remove documents with &apos;quillbay documents --remove&apos;</source>
        <translation>die Liste ist voll; &apos;quillbay documents --remove&apos; entfernt Dokumente</translation>
    </message>
    <message>
        <source>one file and one number at a time</source>
        <translation>nur eine Datei und eine Zahl auf einmal</translation>
    </message>
    <message>
        <source>--remove takes no number</source>
        <translation>--remove nimmt keine Zahl</translation>
    </message>
    <message>
        <source>no number given</source>
        <translation>keine Zahl angegeben</translation>
    </message>
    <message>
        <source>a limit has neither --day nor --by</source>
        <translation>eine Grenze hat weder --day noch --by</translation>
    </message>
    <message>
        <source>--day and --by cannot be combined</source>
        <translation>--day und --by lassen sich nicht verbinden</translation>
    </message>
    <message>
        <source>--added-only needs --day</source>
        <translation>--added-only braucht --day</translation>
    </message>
    <message>
        <source>Goal: %1</source>
        <translation>Ziel: %1</translation>
    </message>
    <message>
        <source>Limit: %1</source>
        <translation>Grenze: %1</translation>
    </message>
    <message>
        <source>%1 has neither a goal nor a limit.</source>
        <translation>%1 hat weder ein Ziel noch eine Grenze.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a number from 1 to %2</source>
        <translation>&apos;%1&apos; ist keine Zahl von 1 bis %2</translation>
    </message>
    <message>
        <source>--of takes words, characters, all-characters or lines</source>
        <translation>--of nimmt words, characters, all-characters oder lines</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a date such as 2026-11-30</source>
        <translation>&apos;%1&apos; ist kein Datum wie 2026-11-30</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Änderung</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Dazu</translation>
    </message>
    <message>
        <source>--keep takes on or off</source>
        <translation>--keep nimmt on oder off</translation>
    </message>
    <message>
        <source>--keep takes no file</source>
        <translation>--keep nimmt keine Datei</translation>
    </message>
    <message>
        <source>one file at a time</source>
        <translation>nur eine Datei auf einmal</translation>
    </message>
    <message>
        <source>--csv and --json cannot be combined</source>
        <translation>--csv und --json lassen sich nicht verbinden</translation>
    </message>
    <message>
        <source>%1: has no history; add it with &apos;quillbay documents&apos;, then save it while its window is open or run &apos;quillbay status&apos;</source>
        <translation>%1: hat keinen Verlauf; mit &apos;quillbay documents&apos; aufnehmen, dann bei offenem Fenster speichern oder &apos;quillbay status&apos; ausführen</translation>
    </message>
    <message>
        <source>%1: cannot be used: %2; check the permissions and the free space of its folder</source>
        <translation>%1: lässt sich nicht benutzen: %2; bitte die Rechte und den freien Platz des Ordners prüfen</translation>
    </message>
    <message>
        <source>%1: is damaged; it was renamed to %2, and a new list of documents begun</source>
        <translation>%1: ist beschädigt; die Datei heißt nun %2, und eine neue Liste der Dokumente wurde begonnen</translation>
    </message>
    <message>
        <source>not counted yet</source>
        <translation>noch nicht gezählt</translation>
    </message>
    <message>
        <source>more than %1</source>
        <translation>mehr als %1</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Heute</translation>
    </message>
    <message>
        <source>takes no file</source>
        <translation>nimmt keine Datei</translation>
    </message>
    <message>
        <source>no documents; add some with &apos;quillbay documents FILE…&apos;</source>
        <translation>keine Dokumente; &apos;quillbay documents FILE…&apos; nimmt welche auf</translation>
    </message>
    <message>
        <source>--%1 knows no &apos;%2&apos;; use one of %3</source>
        <translation>--%1 kennt &apos;%2&apos; nicht; eines von %3 verwenden</translation>
    </message>
    <message>
        <source>--service counts words by Quillbay&apos;s own rules; leave out the other rules</source>
        <translation>--service zählt Wörter nach Quillbays eigenen Regeln; die anderen Regeln weglassen</translation>
    </message>
    <message>
        <source>--also and --columns cannot be combined; name all counts in --columns</source>
        <translation>--also und --columns können nicht kombiniert werden; alle Zahlen in --columns nennen</translation>
    </message>
    <message>
        <source>--include needs --recursive</source>
        <translation>--include braucht --recursive</translation>
    </message>
    <message>
        <source>%1: goal %2, reached with %3 more</source>
        <translation>%1: Ziel %2, erreicht, %3 darüber</translation>
    </message>
    <message>
        <source>%1: goal %2, %3 to go</source>
        <translation>%1: Ziel %2, noch %3</translation>
    </message>
    <message>
        <source>--columns knows no &apos;%1&apos;; use some of %2</source>
        <translation>--columns kennt &apos;%1&apos; nicht; einige von %2 verwenden</translation>
    </message>
    <message>
        <source>--sort knows no &apos;%1&apos;; use name or one of %2</source>
        <translation>--sort kennt &apos;%1&apos; nicht; name oder eines von %2 verwenden</translation>
    </message>
    <message>
        <source>%1 is no goal; use a number, or one such as &apos;5000 characters&apos;</source>
        <translation>%1 ist kein Ziel; eine Zahl verwenden oder eines wie &apos;5000 characters&apos;</translation>
    </message>
</context>
<context>
    <name>counting_service</name>
    <message>
        <source>the request has no document</source>
        <translation>die Anfrage enthält kein Dokument</translation>
    </message>
    <message>
        <source>is not a memory file sealed against writing and shrinking</source>
        <translation>ist keine gegen Schreiben und Verkleinern versiegelte Speicherdatei</translation>
    </message>
    <message>
        <source>is not as long as its sender said</source>
        <translation>ist nicht so lang, wie der Absender angab</translation>
    </message>
    <message>
        <source>is larger than the service accepts</source>
        <translation>ist größer, als der Dienst annimmt</translation>
    </message>
    <message>
        <source>could not be received</source>
        <translation>konnte nicht empfangen werden</translation>
    </message>
    <message>
        <source>is of a type that the counting service does not read</source>
        <translation>ist von einem Typ, den der Zähldienst nicht liest</translation>
    </message>
    <message>
        <source>no worker could be started</source>
        <translation>der Zähldienst konnte keinen Prozess starten</translation>
    </message>
    <message>
        <source>every worker that tried has failed</source>
        <translation>der Zähldienst ist daran mehrmals gescheitert</translation>
    </message>
    <message>
        <source>could not be read</source>
        <translation>konnte nicht gelesen werden</translation>
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
    <name>platform/defaults</name>
    <message>
        <source>it is another program&apos;s database</source>
        <translation>sie ist die Datenbank eines anderen Programms</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>es ist keine Datei</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>sie ist zu groß</translation>
    </message>
    <message>
        <source>its file is being replaced</source>
        <translation>die Datei wird gerade ersetzt</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translation>sie ist beschädigt</translation>
    </message>
    <message>
        <source>another process keeps it locked</source>
        <translation>ein anderer Prozess hält sie gesperrt</translation>
    </message>
    <message>
        <source>unable to open database file</source>
        <translation>die Datei lässt sich nicht öffnen</translation>
    </message>
    <message>
        <source>attempt to write a readonly database</source>
        <translation>die Datei ist schreibgeschützt</translation>
    </message>
    <message>
        <source>database or disk is full</source>
        <translation>der Datenträger ist voll</translation>
    </message>
    <message>
        <source>disk I/O error</source>
        <translation>Ein-/Ausgabefehler</translation>
    </message>
    <message>
        <source>database is locked</source>
        <translation>die Datei ist gesperrt</translation>
    </message>
    <message>
        <source>file is not a database</source>
        <translation>die Datei ist keine Datenbank</translation>
    </message>
    <message>
        <source>database disk image is malformed</source>
        <translation>die Datei ist beschädigt</translation>
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
        <translation>dieser Desktop zeigt die Zwischenablage keinem anderen Programm; den Text kopieren und &apos;quillbay text&apos; im Terminal ausführen, oder seine Datei mit &apos;quillbay text FILE&apos; öffnen</translation>
    </message>
    <message>
        <source>this desktop shows the selection to no other program; copy the text and run &apos;quillbay text&apos; in a terminal, or open its file with &apos;quillbay text FILE&apos;</source>
        <translation>dieser Desktop zeigt die Auswahl keinem anderen Programm; den Text kopieren und &apos;quillbay text&apos; im Terminal ausführen, oder seine Datei mit &apos;quillbay text FILE&apos; öffnen</translation>
    </message>
    <message>
        <source>there is no display to take the clipboard from; &apos;quillbay count&apos; counts a text from a pipe</source>
        <translation>ohne Bildschirm gibt es keine Zwischenablage; &apos;quillbay count&apos; zählt einen Text aus einer Pipe</translation>
    </message>
    <message>
        <source>there is no display to take the selection from; &apos;quillbay count&apos; counts a text from a pipe</source>
        <translation>ohne Bildschirm gibt es keine Auswahl; &apos;quillbay count&apos; zählt einen Text aus einer Pipe</translation>
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
    <message>
        <source>Operation not permitted</source>
        <translation>Vorgang nicht erlaubt</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>Datei oder Ordner gibt es nicht</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>Ein-/Ausgabefehler</translation>
    </message>
    <message>
        <source>No such device or address</source>
        <translation>Gerät oder Adresse gibt es nicht</translation>
    </message>
    <message>
        <source>Cannot allocate memory</source>
        <translation>Nicht genug Speicher</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Zugriff verweigert</translation>
    </message>
    <message>
        <source>Device or resource busy</source>
        <translation>Gerät oder Ressource belegt</translation>
    </message>
    <message>
        <source>File exists</source>
        <translation>Datei existiert schon</translation>
    </message>
    <message>
        <source>No such device</source>
        <translation>Gerät gibt es nicht</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>Ist kein Ordner</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>Ist ein Ordner</translation>
    </message>
    <message>
        <source>Invalid argument</source>
        <translation>Ungültiges Argument</translation>
    </message>
    <message>
        <source>Too many open files in system</source>
        <translation>Zu viele offene Dateien im System</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>Zu viele offene Dateien</translation>
    </message>
    <message>
        <source>File too large</source>
        <translation>Datei zu groß</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>Kein Platz mehr auf dem Datenträger</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>Schreibgeschütztes Dateisystem</translation>
    </message>
    <message>
        <source>Broken pipe</source>
        <translation>Unterbrochene Pipe</translation>
    </message>
    <message>
        <source>File name too long</source>
        <translation>Dateiname zu lang</translation>
    </message>
    <message>
        <source>Too many levels of symbolic links</source>
        <translation>Zu viele symbolische Links</translation>
    </message>
    <message>
        <source>Disk quota exceeded</source>
        <translation>Kontingent überschritten</translation>
    </message>
    <message>
        <source>Stale file handle</source>
        <translation>Veralteter Dateizugriff</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>Zeitüberschreitung der Verbindung</translation>
    </message>
    <message>
        <source>Connection refused</source>
        <translation>Verbindung verweigert</translation>
    </message>
    <message>
        <source>Transport endpoint is not connected</source>
        <translation>Nicht verbunden</translation>
    </message>
    <message>
        <source>Host is down</source>
        <translation>Rechner nicht in Betrieb</translation>
    </message>
    <message>
        <source>No route to host</source>
        <translation>Kein Weg zum Rechner</translation>
    </message>
    <message>
        <source>Exec format error</source>
        <translation>Falsches Programmformat</translation>
    </message>
    <message>
        <source>Bad file descriptor</source>
        <translation>Ungültiger Dateideskriptor</translation>
    </message>
    <message>
        <source>Resource temporarily unavailable</source>
        <translation>Ressource zurzeit nicht verfügbar</translation>
    </message>
</context>
<context>
    <name>presentation</name>
    <message>
        <source>not enough memory to send it to the counting service</source>
        <translation>nicht genug Speicher, um es dem Zähldienst zu senden</translation>
    </message>
    <message>
        <source>there is no session bus, over which the counting service is reached; run again without --service</source>
        <translation>es gibt keinen Sitzungsbus, über den der Zähldienst erreichbar ist; ohne --service erneut ausführen</translation>
    </message>
    <message>
        <source>the counting service does not answer; run again without --service, or &apos;quillbay doctor&apos; to find out why</source>
        <translation>der Zähldienst antwortet nicht; ohne --service erneut ausführen, oder &apos;quillbay doctor&apos;, um den Grund zu finden</translation>
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
<context>
    <name>writing_progress</name>
    <message>
        <source>Goal reached</source>
        <translation>Ziel erreicht</translation>
    </message>
    <message>
        <source>Limit passed</source>
        <translation>Grenze überschritten</translation>
    </message>
    <message>
        <source>%1 word</source>
        <translation>%1 Wort</translation>
    </message>
    <message>
        <source>%1 words</source>
        <translation>%1 Wörter</translation>
    </message>
    <message>
        <source>%1 character</source>
        <translation>%1 Zeichen</translation>
    </message>
    <message>
        <source>%1 characters</source>
        <translation>%1 Zeichen</translation>
    </message>
    <message>
        <source>%1 character with white space</source>
        <translation>%1 Zeichen mit Leerraum</translation>
    </message>
    <message>
        <source>%1 characters with white space</source>
        <translation>%1 Zeichen mit Leerraum</translation>
    </message>
    <message>
        <source>%1 line</source>
        <translation>%1 Zeile</translation>
    </message>
    <message>
        <source>%1 lines</source>
        <translation>%1 Zeilen</translation>
    </message>
    <message>
        <source>%1 a day</source>
        <translation>%1 am Tag</translation>
    </message>
    <message>
        <source>%1 until %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>At most %1</source>
        <translation>Höchstens %1</translation>
    </message>
    <message>
        <source>Reached</source>
        <translation>Erreicht</translation>
    </message>
    <message>
        <source>%1 remaining today</source>
        <translation>noch %1 heute</translation>
    </message>
    <message>
        <source>%1 remaining: it was due on %2</source>
        <translation>noch %1, fällig war es am %2</translation>
    </message>
    <message>
        <source>%1 remaining: %2 a day until %3</source>
        <translation>noch %1: %2 am Tag bis %3</translation>
    </message>
    <message>
        <source>%1 remaining</source>
        <translation>noch %1</translation>
    </message>
    <message>
        <source>%1: has more than %2.</source>
        <translation>%1: hat mehr als %2.</translation>
    </message>
    <message>
        <source>%1: has reached its goal of %2.</source>
        <translation>%1: hat das Ziel von %2 erreicht.</translation>
    </message>
</context>
</TS>
