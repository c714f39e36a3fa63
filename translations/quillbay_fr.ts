<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en_US">
<context>
    <name>CountingReason</name>
    <message>
        <source>a word has at least one letter, digit or ideograph</source>
        <translation>un mot a au moins une lettre, un chiffre ou un idéogramme</translation>
    </message>
    <message>
        <source>in American English, a single character other than A, I, O and X is no word</source>
        <translation>en anglais américain, un caractère seul autre que A, I, O et X n’est pas un mot</translation>
    </message>
    <message>
        <source>there is no letter, digit or ideograph in it</source>
        <translation>il n’y a ni lettre, ni chiffre, ni idéogramme</translation>
    </message>
    <message>
        <source>everything but white space counts, in UTF-16 code units</source>
        <translation>tout compte sauf les blancs, en unités de code UTF-16</translation>
    </message>
    <message>
        <source>spaces, tabs and line ends are white space</source>
        <translation>les espaces, les tabulations et les fins de ligne sont des blancs</translation>
    </message>
    <message>
        <source>every character counts, in UTF-16 code units</source>
        <translation>chaque caractère compte, en unités de code UTF-16</translation>
    </message>
    <message>
        <source>a sentence has at least one word, and ends in punctuation if you require it</source>
        <translation>une phrase a au moins un mot et, si vous l’exigez, se termine par une ponctuation</translation>
    </message>
    <message>
        <source>there is nothing but white space in it</source>
        <translation>il n’y a que des blancs</translation>
    </message>
    <message>
        <source>it does not end in a full stop, question mark or exclamation mark, or in one of them and a straight double quote</source>
        <translation>cela ne se termine pas par un point, un point d’interrogation ou d’exclamation, ni par l’un d’eux suivi d’un guillemet droit double</translation>
    </message>
    <message>
        <source>there is no word in it</source>
        <translation>il n’y a aucun mot</translation>
    </message>
    <message>
        <source>in American English, its single characters other than A, I, O and X are no words</source>
        <translation>en anglais américain, les caractères seuls autres que A, I, O et X ne sont pas des mots</translation>
    </message>
    <message>
        <source>the line ends in a line end</source>
        <translation>la ligne se termine par une fin de ligne</translation>
    </message>
    <message>
        <source>the line ends with the text</source>
        <translation>la ligne se termine avec le texte</translation>
    </message>
    <message>
        <source>the line ends where the column between the margins is full</source>
        <translation>la ligne se termine là où la colonne entre les marges est pleine</translation>
    </message>
    <message>
        <source>a paragraph is not blank, and has as many sentences as you require</source>
        <translation>un paragraphe n’est pas vide et a autant de phrases que vous l’exigez</translation>
    </message>
    <message>
        <source>it has fewer counted sentences than you require (%1)</source>
        <translation>il a moins de phrases comptées que vous n’en exigez (%1)</translation>
    </message>
    <message>
        <source>the paragraph begins with a tab</source>
        <translation>le paragraphe commence par une tabulation</translation>
    </message>
    <message>
        <source>it does not begin with a tab</source>
        <translation>il ne commence pas par une tabulation</translation>
    </message>
    <message>
        <source>it begins with white space other than a tab</source>
        <translation>il commence par un autre blanc qu’une tabulation</translation>
    </message>
    <message>
        <source>it is indented by its style, not by a tab</source>
        <translation>son retrait vient de son style, non d’une tabulation</translation>
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
        <translation>Pages</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Aid&amp;e</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>Restore &amp;Defaults</source>
        <translation>Rétablir les valeurs par &amp;défaut</translation>
    </message>
    <message>
        <source>&amp;About Quillbay</source>
        <translation>À &amp;propos de Quillbay</translation>
    </message>
    <message>
        <source>Rules</source>
        <translation>Règles</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Page</translation>
    </message>
    <message>
        <source>Why</source>
        <translation>Pourquoi</translation>
    </message>
    <message>
        <source>%1: cannot be written, so the change is not stored. Check the permissions and the free space of its folder.</source>
        <translation>%1&#xa0;: écriture impossible, la modification n’est donc pas enregistrée. Vérifiez les droits et l’espace libre de son dossier.</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>Re&amp;faire</translation>
    </message>
    <message>
        <source>About Quillbay</source>
        <translation>À propos de Quillbay</translation>
    </message>
    <message>
        <source>Quillbay %1 counts text for people who write.</source>
        <translation>Quillbay %1 compte les textes de celles et ceux qui écrivent.</translation>
    </message>
    <message>
        <source>%1: is not a file of this computer; copy it here first.</source>
        <translation>%1&#xa0;: n’est pas un fichier de cet ordinateur&#x202f;; copiez-le d’abord ici.</translation>
    </message>
    <message>
        <source>%1: cannot be written (%2), so the default rules apply and changes are not stored. Make the folder writable to set your own.</source>
        <translation>%1&#xa0;: écriture impossible (%2)&#x202f;; les règles par défaut s’appliquent et les modifications ne sont pas enregistrées. Rendez le dossier accessible en écriture pour définir les vôtres.</translation>
    </message>
    <message>
        <source>There is no session bus: open windows of other programs of Quillbay follow a change only at their next count.</source>
        <translation>Il n’y a pas de bus de session&#xa0;: les fenêtres ouvertes des autres programmes de Quillbay ne suivent une modification qu’à leur prochain comptage.</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Annuler&#xa0;: %1</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>Re&amp;faire&#xa0;: %1</translation>
    </message>
    <message>
        <source>Count Selected Text</source>
        <translation>Compter le texte sélectionné</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Raccourci</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Documents</translation>
    </message>
</context>
<context>
    <name>Doctor</name>
    <message>
        <source>Everything works.</source>
        <translation>Tout fonctionne.</translation>
    </message>
    <message>
        <source>Quillbay works, with the limitations above.</source>
        <translation>Quillbay fonctionne, avec les limites ci-dessus.</translation>
    </message>
    <message>
        <source>Something that Quillbay needs does not work; see above.</source>
        <translation>Quelque chose dont Quillbay a besoin ne fonctionne pas&#x202f;; voir ci-dessus.</translation>
    </message>
    <message>
        <source>Windows use Wayland directly, where they cannot choose their place or stay above others.</source>
        <translation>Les fenêtres utilisent Wayland directement, où elles ne peuvent ni choisir leur place ni rester au-dessus des autres.</translation>
    </message>
    <message>
        <source>Install Xwayland (package xwayland), log out and in again.</source>
        <translation>Installez Xwayland (paquet xwayland), fermez la session et rouvrez-la.</translation>
    </message>
    <message>
        <source>DISPLAY is not set.</source>
        <translation>DISPLAY n’est pas défini.</translation>
    </message>
    <message>
        <source>There is no display for windows.</source>
        <translation>Il n’y a pas d’écran pour les fenêtres.</translation>
    </message>
    <message>
        <source>Run this in a terminal of your desktop. &quot;quillbay count&quot; needs no display.</source>
        <translation>Lancez ceci dans un terminal de votre bureau. &quot;quillbay count&quot; n’a pas besoin d’écran.</translation>
    </message>
    <message>
        <source>the X display %1</source>
        <translation>l’écran X %1</translation>
    </message>
    <message>
        <source>Windows appear on %1 of a Wayland session.</source>
        <translation>Les fenêtres apparaissent sur %1 d’une session Wayland.</translation>
    </message>
    <message>
        <source>Windows appear on %1.</source>
        <translation>Les fenêtres apparaissent sur %1.</translation>
    </message>
    <message>
        <source>DISPLAY names %1, which cannot be opened.</source>
        <translation>DISPLAY désigne %1, qui ne peut pas être ouvert.</translation>
    </message>
    <message>
        <source>Run this in a terminal of your desktop.</source>
        <translation>Lancez ceci dans un terminal de votre bureau.</translation>
    </message>
    <message>
        <source>Windows do not stay above others.</source>
        <translation>Les fenêtres ne restent pas au-dessus des autres.</translation>
    </message>
    <message>
        <source>There is no window manager: windows do not stay above others and cannot be moved.</source>
        <translation>Il n’y a pas de gestionnaire de fenêtres&#xa0;: les fenêtres ne restent pas au-dessus des autres et ne peuvent pas être déplacées.</translation>
    </message>
    <message>
        <source>Start a window manager, such as openbox or xfwm4.</source>
        <translation>Lancez un gestionnaire de fenêtres, comme openbox ou xfwm4.</translation>
    </message>
    <message>
        <source>The window manager</source>
        <translation>Le gestionnaire de fenêtres</translation>
    </message>
    <message>
        <source>%1 does not keep windows above others.</source>
        <translation>%1 ne garde pas les fenêtres au-dessus des autres.</translation>
    </message>
    <message>
        <source>Use another window manager, or one of its rules for the windows of &quot;Quillbay&quot;.</source>
        <translation>Utilisez un autre gestionnaire de fenêtres, ou l’une de ses règles pour les fenêtres de &quot;Quillbay&quot;.</translation>
    </message>
    <message>
        <source>%1 keeps Quillbay&apos;s windows above others.</source>
        <translation>%1 garde les fenêtres de Quillbay au-dessus des autres.</translation>
    </message>
    <message>
        <source>The text that is selected in other programs can be read.</source>
        <translation>Le texte sélectionné dans d’autres programmes peut être lu.</translation>
    </message>
    <message>
        <source>The selection cannot be read now: %1.</source>
        <translation>La sélection ne peut pas être lue maintenant&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Select text in another program and run this again.</source>
        <translation>Sélectionnez du texte dans un autre programme et relancez ceci.</translation>
    </message>
    <message>
        <source>Selections cannot be counted: %1.</source>
        <translation>Les sélections ne peuvent pas être comptées&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Copy the text and count it with &quot;quillbay selection --clipboard&quot;, or save it and watch the file.</source>
        <translation>Copiez le texte et comptez-le avec &quot;quillbay selection --clipboard&quot;, ou enregistrez-le et surveillez le fichier.</translation>
    </message>
    <message>
        <source>The desktop has a tray for icons.</source>
        <translation>Le bureau a une zone de notification.</translation>
    </message>
    <message>
        <source>The desktop has no tray for icons. Quillbay needs none: every watched file has a window.</source>
        <translation>Le bureau n’a pas de zone de notification. Quillbay n’en a pas besoin&#xa0;: chaque fichier surveillé a une fenêtre.</translation>
    </message>
    <message>
        <source>The check &quot;%1&quot; did not end within %2 seconds: what it asks does not answer.</source>
        <translation>Le contrôle &quot;%1&quot; n’a pas fini en %2 secondes&#xa0;: ce qu’il interroge ne répond pas.</translation>
    </message>
    <message>
        <source>Log out and in again; if that does not help, restart the computer.</source>
        <translation>Fermez la session et rouvrez-la&#x202f;; si cela n’aide pas, redémarrez l’ordinateur.</translation>
    </message>
    <message>
        <source>There is not enough memory for the check &quot;%1&quot;.</source>
        <translation>La mémoire ne suffit pas pour le contrôle &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Close some programs and run this again.</source>
        <translation>Fermez quelques programmes et relancez ceci.</translation>
    </message>
    <message>
        <source>The check &quot;%1&quot; was left out, because &quot;%2&quot; failed.</source>
        <translation>Le contrôle &quot;%1&quot; a été omis, car &quot;%2&quot; a échoué.</translation>
    </message>
    <message>
        <source>Install the package fonts-urw-base35 or fonts-liberation.</source>
        <translation>Installez le paquet fonts-urw-base35 ou fonts-liberation.</translation>
    </message>
    <message>
        <source>The default printer answers.</source>
        <translation>L’imprimante par défaut répond.</translation>
    </message>
    <message>
        <source>There is no printer; Quillbay offers the usual papers.</source>
        <translation>Il n’y a pas d’imprimante&#x202f;; Quillbay propose les papiers courants.</translation>
    </message>
    <message>
        <source>The default printer does not answer within a second; meanwhile Quillbay offers the usual papers.</source>
        <translation>L’imprimante par défaut ne répond pas en une seconde&#x202f;; d’ici là, Quillbay propose les papiers courants.</translation>
    </message>
    <message>
        <source>There is no usable font: lines are counted as if all letters had the same width.</source>
        <translation>Il n’y a pas de police utilisable&#xa0;: les lignes sont comptées comme si toutes les lettres avaient la même largeur.</translation>
    </message>
    <message>
        <source>Plain text is measured with %1, whose letters are not as wide as those of Helvetica: lines are counted otherwise than elsewhere.</source>
        <translation>Le texte brut est mesuré avec %1, dont les lettres n’ont pas la largeur de celles de Helvetica&#xa0;: les lignes sont comptées autrement qu’ailleurs.</translation>
    </message>
    <message>
        <source>Plain text is measured with %1, which stands for Helvetica.</source>
        <translation>Le texte brut est mesuré avec %1, qui remplace Helvetica.</translation>
    </message>
    <message>
        <source>The margins leave no width for text on the paper %1.</source>
        <translation>Les marges ne laissent pas de largeur pour le texte sur le papier %1.</translation>
    </message>
    <message>
        <source>Run &quot;quillbay preferences --reset left-margin right-margin&quot;.</source>
        <translation>Lancez &quot;quillbay preferences --reset left-margin right-margin&quot;.</translation>
    </message>
    <message>
        <source>Lines are counted in a column of %1 points on the paper %2.</source>
        <translation>Les lignes sont comptées dans une colonne de %1 points sur le papier %2.</translation>
    </message>
    <message>
        <source>Check the printer with &quot;lpstat -t&quot;.</source>
        <translation>Vérifiez l’imprimante avec &quot;lpstat -t&quot;.</translation>
    </message>
    <message>
        <source>This is Quillbay %1 with Qt %2 on %3, Linux %4.</source>
        <translation>Voici Quillbay %1 avec Qt %2 sur %3, Linux %4.</translation>
    </message>
    <message>
        <source>The desktop is %1, the session %2.</source>
        <translation>Le bureau est %1, la session %2.</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>inconnu</translation>
    </message>
    <message>
        <source>A letter that stands alone counts as a word.</source>
        <translation>Une lettre seule compte comme mot.</translation>
    </message>
    <message>
        <source>A letter that stands alone counts as a word only if it is a, I, O or x.</source>
        <translation>Une lettre seule ne compte comme mot que si c’est a, I, O ou x.</translation>
    </message>
    <message>
        <source>The locale %1 is not installed; words are counted by the rules of %2.</source>
        <translation>La locale %1 n’est pas installée&#x202f;; les mots sont comptés selon les règles de %2.</translation>
    </message>
    <message>
        <source>Install the locale: choose it in the list of &quot;sudo dpkg-reconfigure locales&quot;.</source>
        <translation>Installez la locale&#xa0;: choisissez-la dans la liste de &quot;sudo dpkg-reconfigure locales&quot;.</translation>
    </message>
    <message>
        <source>Words are counted by the rules of the locale %1.</source>
        <translation>Les mots sont comptés selon les règles de la locale %1.</translation>
    </message>
    <message>
        <source>To count by the rules of your language, set LANG to its locale.</source>
        <translation>Pour compter selon les règles de votre langue, donnez à LANG sa locale.</translation>
    </message>
    <message>
        <source>The preferences in %1 cannot be read: %2. The default rules apply.</source>
        <translation>Les préférences dans %1 ne peuvent pas être lues&#xa0;: %2. Les règles par défaut s’appliquent.</translation>
    </message>
    <message>
        <source>Run &quot;quillbay preferences --reset-all&quot;, which puts the damaged file aside.</source>
        <translation>Lancez &quot;quillbay preferences --reset-all&quot;, qui met de côté le fichier endommagé.</translation>
    </message>
    <message>
        <source>Check the permissions of the file and of its folders.</source>
        <translation>Vérifiez les droits du fichier et de ses dossiers.</translation>
    </message>
    <message>
        <source>Preferences cannot be stored in %1: %2.</source>
        <translation>Les préférences ne peuvent pas être enregistrées dans %1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>Make the file and its folder writable.</source>
        <translation>Rendez le fichier et son dossier accessibles en écriture.</translation>
    </message>
    <message>
        <source>The preferences in %1 can be read and written.</source>
        <translation>Les préférences dans %1 peuvent être lues et écrites.</translation>
    </message>
    <message>
        <source>There are no preferences yet; the first count writes them to %1.</source>
        <translation>Il n’y a pas encore de préférences&#x202f;; le premier comptage les écrit dans %1.</translation>
    </message>
    <message>
        <source>Documents other than plain text cannot be read: %1.</source>
        <translation>Les documents autres que le texte brut ne peuvent pas être lus&#xa0;: %1.</translation>
    </message>
    <message>
        <source>a test document has lost its text</source>
        <translation>un document d’essai a perdu son texte</translation>
    </message>
    <message>
        <source>Install Quillbay again. If that does not help, use a kernel of the distribution: the sandbox needs its filter of system calls (seccomp).</source>
        <translation>Réinstallez Quillbay. Si cela n’aide pas, utilisez un noyau de la distribution&#xa0;: le bac à sable a besoin de son filtre des appels système (seccomp).</translation>
    </message>
    <message>
        <source>Documents are read in a sandbox, which a filter of system calls keeps up alone: the kernel has no Landlock, or it is switched off.</source>
        <translation>Les documents sont lus dans un bac à sable, que seul un filtre des appels système maintient&#xa0;: le noyau n’a pas Landlock, ou il est désactivé.</translation>
    </message>
    <message>
        <source>Start the kernel with &quot;landlock&quot; in its parameter lsm=.</source>
        <translation>Démarrez le noyau avec &quot;landlock&quot; dans son paramètre lsm=.</translation>
    </message>
    <message>
        <source>Documents are read in a sandbox (Landlock %1 and a filter of system calls).</source>
        <translation>Les documents sont lus dans un bac à sable (Landlock %1 et un filtre des appels système).</translation>
    </message>
    <message>
        <source>The bus does not know the service %1. Install the package quillbay again; after an installation to another place, log out and in again.</source>
        <translation>Le bus ne connaît pas le service %1. Réinstallez le paquet quillbay&#x202f;; après une installation à un autre endroit, fermez la session et rouvrez-la.</translation>
    </message>
    <message>
        <source>Log out and in again. If that does not help, look for &quot;quillbay&quot; in the output of &quot;journalctl --user --since today&quot;.</source>
        <translation>Fermez la session et rouvrez-la. Si cela n’aide pas, cherchez &quot;quillbay&quot; dans la sortie de &quot;journalctl --user --since today&quot;.</translation>
    </message>
    <message>
        <source>There is no session bus, so no window can open: %1.</source>
        <translation>Il n’y a pas de bus de session&#x202f;; aucune fenêtre ne peut donc s’ouvrir&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Run this in a terminal of your desktop. &quot;quillbay count&quot; needs no bus.</source>
        <translation>Lancez ceci dans un terminal de votre bureau. &quot;quillbay count&quot; n’a pas besoin de bus.</translation>
    </message>
    <message>
        <source>The session bus answers.</source>
        <translation>Le bus de session répond.</translation>
    </message>
    <message>
        <source>Texts in windows are not counted: %1.</source>
        <translation>Les textes des fenêtres ne sont pas comptés&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The counting service counts %1 words in &quot;One two three.&quot;</source>
        <translation>Le service de comptage compte %1 mots dans &quot;One two three.&quot;</translation>
    </message>
    <message>
        <source>Install the package quillbay again.</source>
        <translation>Réinstallez le paquet quillbay.</translation>
    </message>
    <message>
        <source>The counting service counts three words in &quot;One two three.&quot;</source>
        <translation>Le service de comptage compte trois mots dans &quot;One two three.&quot;</translation>
    </message>
    <message>
        <source>The program with the windows does not start: %1.</source>
        <translation>Le programme des fenêtres ne démarre pas&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The program with the windows starts.</source>
        <translation>Le programme des fenêtres démarre.</translation>
    </message>
    <message>
        <source>The desktop shows notifications.</source>
        <translation>Le bureau affiche les notifications.</translation>
    </message>
    <message>
        <source>The desktop shows no notifications: an error is invisible where Quillbay was not started in a terminal.</source>
        <translation>Le bureau n’affiche pas de notifications&#xa0;: une erreur reste invisible si Quillbay n’a pas été lancé dans un terminal.</translation>
    </message>
    <message>
        <source>Install a notification server, such as the package dunst.</source>
        <translation>Installez un serveur de notifications, par exemple le paquet dunst.</translation>
    </message>
    <message>
        <source>no instance of inotify is left</source>
        <translation>il ne reste aucune instance d’inotify</translation>
    </message>
    <message>
        <source>no watch of inotify is left</source>
        <translation>il ne reste aucune surveillance d’inotify</translation>
    </message>
    <message>
        <source>Raise the limit: run &quot;sudo sysctl %1&quot;, and write that setting into a file in /etc/sysctl.d to keep it.</source>
        <translation>Relevez la limite&#xa0;: lancez &quot;sudo sysctl %1&quot;, et écrivez ce réglage dans un fichier de /etc/sysctl.d pour le conserver.</translation>
    </message>
    <message>
        <source>At least %1 of %2 watches and %3 of %4 instances of inotify are in use.</source>
        <translation>Au moins %1 surveillances sur %2 et %3 instances sur %4 d’inotify sont utilisées.</translation>
    </message>
    <message>
        <source>The kernel does not report changes of further files (%1), so they are checked every two seconds.</source>
        <translation>Le noyau ne signale pas les modifications d’autres fichiers (%1)&#x202f;; ils sont donc vérifiés toutes les deux secondes.</translation>
    </message>
    <message>
        <source>The kernel reports changes of watched files.</source>
        <translation>Le noyau signale les modifications des fichiers surveillés.</translation>
    </message>
    <message>
        <source>Counts of watched files cannot be spoken, because there is no command %1.</source>
        <translation>Les chiffres des fichiers surveillés ne peuvent pas être énoncés, car la commande %1 n’existe pas.</translation>
    </message>
    <message>
        <source>Install the package quillbay, or another one with that command.</source>
        <translation>Installez le paquet quillbay, ou un autre qui contient cette commande.</translation>
    </message>
    <message>
        <source>Counts of watched files cannot be spoken, because no program for speech is installed.</source>
        <translation>Les chiffres des fichiers surveillés ne peuvent pas être énoncés, car aucun programme de synthèse vocale n’est installé.</translation>
    </message>
    <message>
        <source>Install the package speech-dispatcher or espeak-ng.</source>
        <translation>Installez le paquet speech-dispatcher ou espeak-ng.</translation>
    </message>
    <message>
        <source>Counts of watched files are spoken by %1.</source>
        <translation>Les chiffres des fichiers surveillés sont énoncés par %1.</translation>
    </message>
    <message>
        <source>Counts of watched files can be spoken by %1; this is switched off.</source>
        <translation>Les chiffres des fichiers surveillés peuvent être énoncés par %1&#x202f;; c’est désactivé.</translation>
    </message>
    <message>
        <source>Windows need an X display, or Qt&apos;s plugin for Wayland.</source>
        <translation>Les fenêtres ont besoin d’un écran X, ou du module Wayland de Qt.</translation>
    </message>
    <message>
        <source>Install the package xwayland, or else qt6-wayland, and log in again.</source>
        <translation>Installez le paquet xwayland, ou sinon qt6-wayland, et rouvrez la session.</translation>
    </message>
    <message>
        <source>The menus of these file managers have no entries of Quillbay: %1.</source>
        <translation>Les menus de ces gestionnaires de fichiers n’ont pas d’entrées de Quillbay&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Install the Debian package of Quillbay and start the file manager again.</source>
        <translation>Installez le paquet Debian de Quillbay et relancez le gestionnaire de fichiers.</translation>
    </message>
    <message>
        <source>No file manager is installed that can have entries of Quillbay.</source>
        <translation>Aucun gestionnaire de fichiers pouvant avoir des entrées de Quillbay n’est installé.</translation>
    </message>
    <message>
        <source>The menus of these file managers have entries of Quillbay: %1.</source>
        <translation>Les menus de ces gestionnaires de fichiers ont des entrées de Quillbay&#xa0;: %1.</translation>
    </message>
</context>
<context>
    <name>DocumentChooser</name>
    <message>
        <source>Documents (%1)</source>
        <translation>Documents (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
</context>
<context>
    <name>DocumentList</name>
    <message>
        <source>%1: cannot be used (%2), so the list, the goals and the history are not stored. Check the permissions and the free space of its folder.</source>
        <translation>%1&#xa0;: n’est pas utilisable (%2)&#x202f;; la liste, les objectifs et l’historique ne sont donc pas enregistrés. Vérifiez les droits et l’espace libre de son dossier.</translation>
    </message>
    <message>
        <source>%1: was damaged. It was renamed to %2, and a new list begun.</source>
        <translation>%1&#xa0;: était endommagé. Il a été renommé %2, et une nouvelle liste commencée.</translation>
    </message>
</context>
<context>
    <name>DocumentTable</name>
    <message>
        <source>Words</source>
        <translation>Mots</translation>
    </message>
    <message>
        <source>Characters</source>
        <translation>Caractères</translation>
    </message>
    <message>
        <source>Characters with white space</source>
        <translation>Caractères, blancs compris</translation>
    </message>
    <message>
        <source>Sentences</source>
        <translation>Phrases</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Lignes</translation>
    </message>
    <message>
        <source>Hard line breaks</source>
        <translation>Sauts de ligne forcés</translation>
    </message>
    <message>
        <source>Paragraphs</source>
        <translation>Paragraphes</translation>
    </message>
    <message>
        <source>Indented paragraphs</source>
        <translation>Paragraphes en retrait</translation>
    </message>
    <message>
        <source>More than %1</source>
        <translation>Plus de %1</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Reading …</source>
        <translation>Lecture…</translation>
    </message>
    <message>
        <source>The file is missing</source>
        <translation>Le fichier manque</translation>
    </message>
    <message>
        <source>The file cannot be read</source>
        <translation>Le fichier ne peut être lu</translation>
    </message>
    <message>
        <source>The counting service does not answer</source>
        <translation>Le service de comptage ne répond pas</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>By how many words the document has changed since this window was opened</source>
        <translation>De combien de mots le document a changé depuis l’ouverture de cette fenêtre</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Session</translation>
    </message>
    <message>
        <source>By how many words the document has changed since midnight</source>
        <translation>De combien de mots le document a changé depuis minuit</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Aujourd’hui</translation>
    </message>
    <message>
        <source>Goal</source>
        <translation>Objectif</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>Last save</source>
        <translation>Enregistré</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Today: %1</source>
        <translation>Aujourd’hui&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>DocumentsPage</name>
    <message>
        <source>F&amp;ilter:</source>
        <translation>F&amp;iltre&#xa0;:</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Documents</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>&amp;Ajouter…</translation>
    </message>
    <message>
        <source>Add F&amp;older…</source>
        <translation>Ajouter un d&amp;ossier…</translation>
    </message>
    <message>
        <source>Show on &amp;Top</source>
        <translation>Montrer au-dess&amp;us</translation>
    </message>
    <message>
        <source>Open a small window that stays above the others, with the counts of the document</source>
        <translation>Ouvrir une petite fenêtre qui reste au-dessus des autres, avec les chiffres du document</translation>
    </message>
    <message>
        <source>&amp;Goal…</source>
        <translation>Ob&amp;jectif…</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>Copy the selected rows, or all, as text, CSV and HTML</source>
        <translation>Copier les lignes sélectionnées, ou toutes, sous forme de texte, CSV et HTML</translation>
    </message>
    <message>
        <source>&amp;Up</source>
        <translation>&amp;Monter</translation>
    </message>
    <message>
        <source>Do&amp;wn</source>
        <translation>Desce&amp;ndre</translation>
    </message>
    <message>
        <source>Fi&amp;nd File…</source>
        <translation>&amp;Trouver le fichier…</translation>
    </message>
    <message>
        <source>Choose the file of a document that was moved</source>
        <translation>Choisir le fichier d’un document déplacé</translation>
    </message>
    <message>
        <source>&amp;Remove…</source>
        <translation>&amp;Retirer…</translation>
    </message>
    <message>
        <source>&amp;Keep the history of the counts</source>
        <translation>Conserver l’&amp;historique des chiffres</translation>
    </message>
    <message>
        <source>Of each save the time and the eight counts are kept, and nothing of the text. Off: only what the changes of the day need.</source>
        <translation>De chaque enregistrement sont conservés l’heure et les huit chiffres, et rien du texte. Désactivé&#xa0;: seulement ce qu’exigent les changements du jour.</translation>
    </message>
    <message>
        <source>Drop documents here, or add them: their counts follow every save, and you see what today brought. Nothing of their texts is kept.</source>
        <translation>Déposez ici des documents, ou ajoutez-les&#xa0;: leurs chiffres suivent chaque enregistrement, et vous voyez ce qu’a apporté la journée. Rien de leurs textes n’est conservé.</translation>
    </message>
    <message>
        <source>All documents (%1)</source>
        <translation>Tous les documents (%1)</translation>
    </message>
    <message>
        <source>Selected documents (%1)</source>
        <translation>Documents sélectionnés (%1)</translation>
    </message>
    <message>
        <source>&amp;Forget the History</source>
        <translation>Oublier l’histori&amp;que</translation>
    </message>
    <message>
        <source>Add a Folder</source>
        <translation>Ajouter un dossier</translation>
    </message>
    <message>
        <source>Add the files whose names match, in the folders inside it, too:</source>
        <translation>Ajouter les fichiers dont le nom correspond, y compris dans ses sous-dossiers&#xa0;:</translation>
    </message>
    <message>
        <source>No file in %1 matches %2.</source>
        <translation>Aucun fichier de %1 ne correspond à %2.</translation>
    </message>
    <message>
        <source>Remove %1 from the list, and forget its goal and its history?</source>
        <translation>Retirer %1 de la liste, et oublier son objectif et son historique&#x202f;?</translation>
    </message>
    <message>
        <source>Remove %1 documents from the list, and forget their goals and their history?</source>
        <translation>Retirer %1 documents de la liste, et oublier leurs objectifs et leur historique&#x202f;?</translation>
    </message>
    <message>
        <source>Remove Documents</source>
        <translation>Retirer des documents</translation>
    </message>
    <message>
        <source>The files stay where they are.</source>
        <translation>Les fichiers restent où ils sont.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
</context>
<context>
    <name>FurtherRulesBox</name>
    <message>
        <source>%L1 words</source>
        <translation>%L1&#xa0;mots</translation>
    </message>
    <message>
        <source>%L1 characters</source>
        <translation>%L1&#xa0;caractères</translation>
    </message>
    <message>
        <source>Beyond the Eight Numbers</source>
        <translation>Au-delà des huit statistiques</translation>
    </message>
    <message>
        <source>Shown in the table of documents and in the terminal only.</source>
        <translation>Visibles seulement dans le tableau des documents et dans le terminal.</translation>
    </message>
    <message>
        <source>Pages of your paper</source>
        <translation>Pages de votre papier</translation>
    </message>
    <message>
        <source>Standard pages</source>
        <translation>Pages types</translation>
    </message>
    <message>
        <source>Reading time</source>
        <translation>Temps de lecture</translation>
    </message>
    <message>
        <source>Reading Speed</source>
        <translation>Vitesse de lecture</translation>
    </message>
    <message>
        <source>Speaking time</source>
        <translation>Temps de parole</translation>
    </message>
    <message>
        <source>Speaking Speed</source>
        <translation>Vitesse de parole</translation>
    </message>
    <message>
        <source>Characters as a reader sees them</source>
        <translation>Caractères tels qu’on les voit</translation>
    </message>
    <message>
        <source>Counts what looks like one character as one: letters with their accents, and emoji.</source>
        <translation>Compte pour un ce qui ressemble à un seul caractère&#xa0;: les lettres avec leurs accents, les émojis.</translation>
    </message>
    <message>
        <source> words per minute</source>
        <translation>&#xa0;mots par minute</translation>
    </message>
    <message>
        <source>Standard Page</source>
        <translation>Page type</translation>
    </message>
    <message>
        <source>Choose a size, or type your own. White space counts as characters.</source>
        <translation>Choisissez une taille ou saisissez la vôtre. Les blancs comptent parmi les caractères.</translation>
    </message>
    <message>
        <source>Speed:</source>
        <translation>Vitesse&#xa0;:</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Taille&#xa0;:</translation>
    </message>
</context>
<context>
    <name>GoalDialog</name>
    <message>
        <source>&amp;Goal</source>
        <translation>&amp;Objectif</translation>
    </message>
    <message>
        <source>Nu&amp;mber:</source>
        <translation>&amp;Nombre&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Of:</source>
        <translation>&amp;De&#xa0;:</translation>
    </message>
    <message>
        <source>In &amp;all</source>
        <translation>En &amp;tout</translation>
    </message>
    <message>
        <source>&amp;Until</source>
        <translation>D’&amp;ici au</translation>
    </message>
    <message>
        <source>Last day</source>
        <translation>Dernier jour</translation>
    </message>
    <message>
        <source>Each &amp;day, from midnight</source>
        <translation>Chaque &amp;jour, à partir de minuit</translation>
    </message>
    <message>
        <source>Do not subtract &amp;what is deleted</source>
        <translation>Ne pas déduire ce qui est &amp;supprimé</translation>
    </message>
    <message>
        <source>What is deleted counts against the day. With the switch, what is added between two saves counts, and what is deleted is left aside.</source>
        <translation>Ce qui est supprimé se déduit de la journée. Avec cette option, ce qui est ajouté entre deux enregistrements compte, et ce qui est supprimé est laissé de côté.</translation>
    </message>
    <message>
        <source>&amp;Limit</source>
        <translation>&amp;Limite</translation>
    </message>
    <message>
        <source>At mo&amp;st:</source>
        <translation>Au &amp;plus&#xa0;:</translation>
    </message>
    <message>
        <source>O&amp;f:</source>
        <translation>D&amp;e&#xa0;:</translation>
    </message>
    <message>
        <source>Words</source>
        <translation>Mots</translation>
    </message>
    <message>
        <source>Characters</source>
        <translation>Caractères</translation>
    </message>
    <message>
        <source>Characters with white space</source>
        <translation>Caractères, blancs compris</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Lignes</translation>
    </message>
    <message>
        <source>Goal of %1</source>
        <translation>Objectif de %1</translation>
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
        <translation>&#xa0;po</translation>
    </message>
</context>
<context>
    <name>Manual</name>
    <message>
        <source>Usage:</source>
        <translation>Usage&#xa0;:</translation>
    </message>
    <message>
        <source>Examples:</source>
        <translation>Exemples&#xa0;:</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Options&#xa0;:</translation>
    </message>
    <message>
        <source>Exit status:</source>
        <translation>Code de retour&#xa0;:</translation>
    </message>
    <message>
        <source>SYNOPSIS</source>
        <translation>SYNOPSIS</translation>
    </message>
    <message>
        <source>NAMES</source>
        <translation>NOMS</translation>
    </message>
    <message>
        <source>COMMANDS</source>
        <translation>COMMANDES</translation>
    </message>
    <message>
        <source>OPTIONS</source>
        <translation>OPTIONS</translation>
    </message>
    <message>
        <source>EXAMPLES</source>
        <translation>EXEMPLES</translation>
    </message>
    <message>
        <source>EXIT STATUS</source>
        <translation>CODE DE RETOUR</translation>
    </message>
    <message>
        <source>SEE ALSO</source>
        <translation>VOIR AUSSI</translation>
    </message>
    <message>
        <source>User Commands</source>
        <translation>Commandes utilisateur</translation>
    </message>
    <message>
        <source>System Programs</source>
        <translation>Programmes système</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NOM</translation>
    </message>
    <message>
        <source>DESCRIPTION</source>
        <translation>DESCRIPTION</translation>
    </message>
    <message>
        <source>NOTES</source>
        <translation>NOTES</translation>
    </message>
    <message>
        <source>print this help and exit</source>
        <translation>afficher cette aide et quitter</translation>
    </message>
    <message>
        <source>print the version and exit</source>
        <translation>afficher la version et quitter</translation>
    </message>
    <message>
        <source>the options or arguments were wrong</source>
        <translation>les options ou les arguments étaient incorrects</translation>
    </message>
    <message>
        <source>print the counts of files or of standard input</source>
        <translation>afficher les chiffres de fichiers ou de l’entrée standard</translation>
    </message>
    <message>
        <source>FILE can be plain text, RTF, RTFD, a web page, a Word document, an OpenDocument text, an EPUB or a PDF file. A file that is no text, such as a picture, is reported and not counted.</source>
        <translation>FILE peut être du texte brut, du RTF, un RTFD, une page web, un document Word, un texte OpenDocument, un EPUB ou un fichier PDF. Un fichier qui n’est pas un texte, comme une image, est signalé et n’est pas compté.</translation>
    </message>
    <message>
        <source>print a JSON object on a line of its own for each file</source>
        <translation>afficher pour chaque fichier un objet JSON sur une ligne à part</translation>
    </message>
    <message>
        <source>print tab-separated columns, with their names on the first line</source>
        <translation>afficher des colonnes séparées par des tabulations, avec leurs noms sur la première ligne</translation>
    </message>
    <message>
        <source>also count the files named in LIST, after those of the command line; the names are separated by line ends, or by NUL bytes if there are any; LIST may be - for standard input</source>
        <translation>compter aussi les fichiers nommés dans LIST, après ceux de la ligne de commande&#x202f;; les noms sont séparés par des fins de ligne, ou par des octets NUL s’il y en a&#x202f;; LIST peut être - pour l’entrée standard</translation>
    </message>
    <message>
        <source>count every file as plain text, whatever it is: a web page with its markup, a picture with its bytes</source>
        <translation>compter chaque fichier comme du texte brut, quel qu’il soit&#xa0;: une page web avec son balisage, une image avec ses octets</translation>
    </message>
    <message>
        <source>For several files, the table ends with a row of totals; the other two formats have no such row.</source>
        <translation>Pour plusieurs fichiers, le tableau se termine par une ligne de totaux&#x202f;; les deux autres formats n’en ont pas.</translation>
    </message>
    <message>
        <source>all files were counted</source>
        <translation>tous les fichiers ont été comptés</translation>
    </message>
    <message>
        <source>a file could not be counted</source>
        <translation>un fichier n’a pas pu être compté</translation>
    </message>
    <message>
        <source>count the text files of this folder, with their total</source>
        <translation>compter les fichiers texte de ce dossier, avec leur total</translation>
    </message>
    <message>
        <source>count all OpenDocument texts below this folder, whatever their names are</source>
        <translation>compter tous les textes OpenDocument sous ce dossier, quels que soient leurs noms</translation>
    </message>
    <message>
        <source>print nothing but the number of words</source>
        <translation>n’afficher que le nombre de mots</translation>
    </message>
    <message>
        <source>set the rules of the counts in a window</source>
        <translation>fixer les règles des comptages dans une fenêtre</translation>
    </message>
    <message>
        <source>Opens Quillbay&apos;s main window, in which you set the rules of the counts. If it is open already, it comes to the front. With FILE, it shows why the counts of that text are what they are.</source>
        <translation>Ouvre la fenêtre principale de Quillbay, dans laquelle vous fixez les règles des comptages. Si elle est déjà ouverte, elle passe au premier plan. Avec FILE, elle montre d’où viennent les chiffres de ce texte.</translation>
    </message>
    <message>
        <source>the window was closed, or another process shows it</source>
        <translation>la fenêtre a été fermée, ou un autre processus l’affiche</translation>
    </message>
    <message>
        <source>the window could not be shown</source>
        <translation>la fenêtre n’a pas pu être affichée</translation>
    </message>
    <message>
        <source>print what counts in files, what does not, and why</source>
        <translation>afficher ce qui compte dans des fichiers, ce qui ne compte pas, et pourquoi</translation>
    </message>
    <message>
        <source>Prints the counts of each FILE as &apos;quillbay count&apos; does, and why they are what they are. Without FILE, or if FILE is -, reads standard input. FILE can be of every kind that &apos;quillbay count&apos; counts.</source>
        <translation>Affiche les chiffres de chaque FILE comme &apos;quillbay count&apos;, et d’où ils viennent. Sans FILE, ou si FILE est -, lit l’entrée standard. FILE peut être de tous les types que compte &apos;quillbay count&apos;.</translation>
    </message>
    <message>
        <source>Without options, prints each count with what was not counted and why. With the name of a count, prints the whole text, with what counted in [square brackets] and what did not in {curly ones}. Several counts are explained one after another.</source>
        <translation>Sans option, affiche chaque chiffre avec ce qui n’a pas été compté et pourquoi. Avec le nom d’un chiffre, affiche le texte entier, avec ce qui est compté entre [crochets] et ce qui ne l’est pas entre {accolades}. Plusieurs chiffres sont expliqués l’un après l’autre.</translation>
    </message>
    <message>
        <source>explain the words</source>
        <translation>expliquer les mots</translation>
    </message>
    <message>
        <source>explain the sentences</source>
        <translation>expliquer les phrases</translation>
    </message>
    <message>
        <source>explain the paragraphs</source>
        <translation>expliquer les paragraphes</translation>
    </message>
    <message>
        <source>explain the indented paragraphs</source>
        <translation>expliquer les paragraphes en retrait</translation>
    </message>
    <message>
        <source>explain the lines on your paper</source>
        <translation>expliquer les lignes sur votre papier</translation>
    </message>
    <message>
        <source>explain the hard line breaks</source>
        <translation>expliquer les sauts de ligne forcés</translation>
    </message>
    <message>
        <source>explain the characters without white space</source>
        <translation>expliquer les caractères sans les blancs</translation>
    </message>
    <message>
        <source>explain the characters including white space</source>
        <translation>expliquer les caractères, blancs compris</translation>
    </message>
    <message>
        <source>print only what was not counted, with the text around it</source>
        <translation>n’afficher que ce qui n’a pas été compté, avec le texte autour</translation>
    </message>
    <message>
        <source>print a JSON object on a line of its own for each word, sentence and so on (of all counts, or of those that are named): the file, the kind of the count, the offset and length in UTF-16 code units, whether it was counted, the reason as a fixed identifier, and the text, of which at most 200 code units; a line as of &apos;quillbay count --json&apos; follows</source>
        <translation>afficher un objet JSON sur une ligne à part pour chaque mot, phrase, etc. (de tous les chiffres, ou de ceux qui sont nommés)&#xa0;: le fichier, le type du chiffre, la position et la longueur en unités de code UTF-16, s’il a été compté, la raison sous forme d’identifiant fixe et le texte, au plus 200 unités de code&#x202f;; une ligne comme celle de &apos;quillbay count --json&apos; suit</translation>
    </message>
    <message>
        <source>read every file as plain text, whatever it is</source>
        <translation>lire chaque fichier comme du texte brut, quel qu’il soit</translation>
    </message>
    <message>
        <source>&apos;quillbay count --explain-rules&apos; prints the rules themselves: your preferences and your locale.</source>
        <translation>&apos;quillbay count --explain-rules&apos; affiche les règles elles-mêmes&#xa0;: vos préférences et votre locale.</translation>
    </message>
    <message>
        <source>all files were explained</source>
        <translation>tous les fichiers ont été expliqués</translation>
    </message>
    <message>
        <source>a file could not be explained</source>
        <translation>un fichier n’a pas pu être expliqué</translation>
    </message>
    <message>
        <source>find the headings that are not counted as sentences</source>
        <translation>trouver les titres qui ne sont pas comptés comme phrases</translation>
    </message>
    <message>
        <source>print the text of files, as it is counted</source>
        <translation>afficher le texte de fichiers, tel qu’il est compté</translation>
    </message>
    <message>
        <source>Prints the text of each FILE that &apos;quillbay count&apos; counts, in UTF-8: without markup, headers and hidden text, with the notes behind the body. Without FILE, or if FILE is -, reads standard input. FILE can be of every kind that &apos;quillbay count&apos; counts.</source>
        <translation>Affiche le texte de chaque FILE que compte &apos;quillbay count&apos;, en UTF-8&#xa0;: sans balisage, en-têtes ni texte masqué, les notes étant placées après le corps. Sans FILE, ou si FILE est -, lit l’entrée standard. FILE peut être de tous les types que compte &apos;quillbay count&apos;.</translation>
    </message>
    <message>
        <source>Nothing is added between the files. Pictures and other attachments are the character U+FFFC, which is counted. On a terminal, control characters other than tabs and line ends are escaped, as \x1b; elsewhere they are printed as they are.</source>
        <translation>Rien n’est ajouté entre les fichiers. Les images et autres pièces jointes sont le caractère U+FFFC, qui est compté. Dans un terminal, les caractères de contrôle autres que les tabulations et les fins de ligne sont échappés, par exemple \x1b&#x202f;; ailleurs, ils sont affichés tels quels.</translation>
    </message>
    <message>
        <source>print a JSON object on a line of its own for each file: its name, its MIME type, the text, the length of the text in UTF-16 code units, and the paragraphs; each has its offset and its length without the line end, in UTF-16 code units and in bytes of UTF-8, and its counts, which add up to those of &apos;quillbay count&apos;</source>
        <translation>afficher pour chaque fichier un objet JSON sur une ligne à part&#xa0;: son nom, son type MIME, le texte, la longueur du texte en unités de code UTF-16 et les paragraphes&#x202f;; chacun a sa position et sa longueur sans la fin de ligne, en unités de code UTF-16 et en octets d’UTF-8, et ses chiffres, dont la somme est celle de &apos;quillbay count&apos;</translation>
    </message>
    <message>
        <source>all files were printed</source>
        <translation>tous les fichiers ont été affichés</translation>
    </message>
    <message>
        <source>a file could not be printed</source>
        <translation>un fichier n’a pas pu être affiché</translation>
    </message>
    <message>
        <source>count the words of a Word document as another program does</source>
        <translation>compter les mots d’un document Word comme le fait un autre programme</translation>
    </message>
    <message>
        <source>on or off</source>
        <translation>on ou off</translation>
    </message>
    <message>
        <source>such as 1in, 25.4mm, 2.5cm or 72pt, at most so wide that a column of half an inch is left</source>
        <translation>par exemple 1in, 25.4mm, 2.5cm ou 72pt, au plus assez large pour laisser une colonne d’un demi-pouce</translation>
    </message>
    <message>
        <source>print and set the rules of the counts</source>
        <translation>afficher et fixer les règles des comptages</translation>
    </message>
    <message>
        <source>Prints the rules of the counts, or the one called NAME; sets NAME to VALUE; or gives rules the values of a new user. Open windows show what you want at once; their numbers follow at the next count.</source>
        <translation>Affiche les règles des comptages, ou celle qui s’appelle NAME&#x202f;; donne à NAME la valeur VALUE&#x202f;; ou rend à des règles leurs valeurs initiales. Les fenêtres ouvertes montrent aussitôt ce que vous voulez&#x202f;; leurs chiffres suivent au prochain comptage.</translation>
    </message>
    <message>
        <source>Names:</source>
        <translation>Noms&#xa0;:</translation>
    </message>
    <message>
        <source>on or off: show the characters; also sets the next one</source>
        <translation>on ou off&#xa0;: afficher les caractères&#x202f;; fixe aussi le suivant</translation>
    </message>
    <message>
        <source>0 to 1000: paragraphs with fewer sentences are not counted</source>
        <translation>0 à 1000&#xa0;: les paragraphes qui ont moins de phrases ne sont pas comptés</translation>
    </message>
    <message>
        <source>on or off: count only sentences that end in a full stop, question mark or exclamation mark</source>
        <translation>on ou off&#xa0;: ne compter que les phrases terminées par un point, un point d’interrogation ou d’exclamation</translation>
    </message>
    <message>
        <source>on or off: speak the words of a watched file when their number changes</source>
        <translation>on ou off&#xa0;: énoncer le nombre de mots d’un fichier surveillé quand il change</translation>
    </message>
    <message>
        <source>a paper of your printer, such as A4 or Letter</source>
        <translation>un papier de votre imprimante, comme A4 ou Letter</translation>
    </message>
    <message>
        <source>print a JSON object; margins are in inches</source>
        <translation>afficher un objet JSON&#x202f;; les marges sont en pouces</translation>
    </message>
    <message>
        <source>reset the rules that are named</source>
        <translation>réinitialiser les règles nommées</translation>
    </message>
    <message>
        <source>reset all rules</source>
        <translation>réinitialiser toutes les règles</translation>
    </message>
    <message>
        <source>the rules were printed or stored</source>
        <translation>les règles ont été affichées ou enregistrées</translation>
    </message>
    <message>
        <source>a rule could not be stored</source>
        <translation>une règle n’a pas pu être enregistrée</translation>
    </message>
    <message>
        <source>do not count headings as paragraphs</source>
        <translation>ne pas compter les titres comme paragraphes</translation>
    </message>
    <message>
        <source>use the default margins again</source>
        <translation>reprendre les marges par défaut</translation>
    </message>
    <message>
        <source>count text for people who write</source>
        <translation>compter les textes de celles et ceux qui écrivent</translation>
    </message>
    <message>
        <source>Counts words, characters, sentences, lines on your paper and paragraphs by your own rules: in a terminal, or in a small window that follows a file through every save.</source>
        <translation>Compte les mots, caractères, phrases, lignes sur votre papier et paragraphes selon vos propres règles&#xa0;: dans un terminal, ou dans une petite fenêtre qui suit un fichier à chaque enregistrement.</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>Commandes&#xa0;:</translation>
    </message>
    <message>
        <source>print the help of a command and exit</source>
        <translation>afficher l’aide d’une commande et quitter</translation>
    </message>
    <message>
        <source>Run &apos;quillbay help COMMAND&apos; or &apos;man quillbay-COMMAND&apos; for the options of a command.</source>
        <translation>&apos;quillbay help COMMAND&apos; ou &apos;man quillbay-COMMAND&apos; montre les options d’une commande.</translation>
    </message>
    <message>
        <source>everything was done</source>
        <translation>tout a été fait</translation>
    </message>
    <message>
        <source>something was not done, and is reported on standard error</source>
        <translation>quelque chose n’a pas été fait, et est signalé sur la sortie d’erreur</translation>
    </message>
    <message>
        <source>speak a phrase</source>
        <translation>énoncer une phrase</translation>
    </message>
    <message>
        <source>Speaks PHRASE, which is one argument, through the speech dispatcher of the user, or through espeak-ng if there is none. It exits when the dispatcher has accepted the phrase, or when espeak-ng has spoken it.</source>
        <translation>Énonce PHRASE, qui est un seul argument, par le répartiteur vocal de l’utilisateur, ou par espeak-ng s’il n’y en a pas. Le programme se termine quand le répartiteur a accepté la phrase, ou quand espeak-ng l’a énoncée.</translation>
    </message>
    <message>
        <source>Quillbay speaks the number of words of a watched file through /usr/bin/say. Quillbay&apos;s package makes that name an alternative for this program, unless another package owns it.</source>
        <translation>Quillbay énonce le nombre de mots d’un fichier surveillé par /usr/bin/say. Le paquet de Quillbay fait de ce nom une alternative pour ce programme, sauf si un autre paquet le possède.</translation>
    </message>
    <message>
        <source>the phrase is spoken</source>
        <translation>la phrase est énoncée</translation>
    </message>
    <message>
        <source>neither of the two programs could speak it</source>
        <translation>aucun des deux programmes n’a pu l’énoncer</translation>
    </message>
    <message>
        <source>show the counts of the text selected in any application</source>
        <translation>afficher les chiffres du texte sélectionné dans n’importe quelle application</translation>
    </message>
    <message>
        <source>Opens a small window with the counts of the text that is selected in any application. Meant for a keyboard shortcut: errors are reported in a desktop notification as well as on standard error.</source>
        <translation>Ouvre une petite fenêtre avec les chiffres du texte sélectionné dans n’importe quelle application. Conçu pour un raccourci clavier&#xa0;: les erreurs sont signalées dans une notification du bureau aussi bien que sur la sortie d’erreur.</translation>
    </message>
    <message>
        <source>use the text that was copied last instead</source>
        <translation>prendre plutôt le dernier texte copié</translation>
    </message>
    <message>
        <source>the window has opened</source>
        <translation>la fenêtre s’est ouverte</translation>
    </message>
    <message>
        <source>the window could not be opened</source>
        <translation>la fenêtre n’a pas pu être ouverte</translation>
    </message>
    <message>
        <source>count documents for Quillbay&apos;s windows</source>
        <translation>compter des documents pour les fenêtres de Quillbay</translation>
    </message>
    <message>
        <source>Counts documents for other programs. The session bus starts it for the first request to Brisklane.QBYServiceProviderXPC; it exits when it has been idle for a while.</source>
        <translation>Compte des documents pour d’autres programmes. Le bus de session le lance à la première demande adressée à Brisklane.QBYServiceProviderXPC&#x202f;; il se termine après un moment d’inactivité.</translation>
    </message>
    <message>
        <source>The documents are read by processes of their own, which are sandboxed before they receive one. Where systemd manages the session, the unit quillbay-counting-service.service limits all of them together.</source>
        <translation>Les documents sont lus par des processus à part, isolés avant d’en recevoir un. Là où systemd gère la session, l’unité quillbay-counting-service.service les limite tous ensemble.</translation>
    </message>
    <message>
        <source>exit after being idle for this long (default: 60000)</source>
        <translation>quitter après cette durée d’inactivité (par défaut&#xa0;: 60000)</translation>
    </message>
    <message>
        <source>it was idle, or was told to stop</source>
        <translation>il était inactif, ou il a été arrêté</translation>
    </message>
    <message>
        <source>the service could not be offered on the session bus</source>
        <translation>le service n’a pas pu être proposé sur le bus de session</translation>
    </message>
    <message>
        <source>show Quillbay&apos;s windows with counts</source>
        <translation>afficher les fenêtres de Quillbay avec des chiffres</translation>
    </message>
    <message>
        <source>Shows the windows with the counts of selected texts and of watched files. The session bus starts it for the first request to com.quillbay.ServiceProvider, as &apos;quillbay text&apos; and &apos;quillbay watch&apos; send it; it exits when the last window is closed.</source>
        <translation>Affiche les fenêtres avec les chiffres des textes sélectionnés et des fichiers surveillés. Le bus de session le lance à la première demande adressée à com.quillbay.ServiceProvider, comme en envoient &apos;quillbay text&apos; et &apos;quillbay watch&apos;&#x202f;; il se termine quand la dernière fenêtre est fermée.</translation>
    </message>
    <message>
        <source>no window is left, or the session has ended</source>
        <translation>il ne reste aucune fenêtre, ou la session est terminée</translation>
    </message>
    <message>
        <source>there is no display, or the services could not be offered</source>
        <translation>il n’y a pas d’écran, ou les services n’ont pas pu être proposés</translation>
    </message>
    <message>
        <source>the connection to the X server was lost</source>
        <translation>la connexion au serveur X a été perdue</translation>
    </message>
    <message>
        <source>read one document in a sandbox</source>
        <translation>lire un document dans un bac à sable</translation>
    </message>
    <message>
        <source>Reads one document for another program of Quillbay, which starts it. It receives the document in memory and can open no file and no connection; its memory and time are limited in proportion to the document.</source>
        <translation>Lit un document pour un autre programme de Quillbay, qui le lance. Il reçoit le document en mémoire et ne peut ouvrir ni fichier ni connexion&#x202f;; sa mémoire et son temps sont limités en proportion du document.</translation>
    </message>
    <message>
        <source>the document was read, or none was sent</source>
        <translation>le document a été lu, ou aucun n’a été envoyé</translation>
    </message>
    <message>
        <source>keep what you copied from Quillbay&apos;s windows</source>
        <translation>garder ce que vous avez copié des fenêtres de Quillbay</translation>
    </message>
    <message>
        <source>Takes over what you have copied from a window of Quillbay when the last one is closed, and hands it to the clipboard manager of the desktop. Without a manager it keeps the content until another program copies something or the display closes.</source>
        <translation>Prend en charge ce que vous avez copié d’une fenêtre de Quillbay quand la dernière est fermée, et le remet au gestionnaire de presse-papiers du bureau. Sans gestionnaire, il garde le contenu jusqu’à ce qu’un autre programme copie quelque chose ou que l’écran se ferme.</translation>
    </message>
    <message>
        <source>the content is saved, or was replaced</source>
        <translation>le contenu est sauvé, ou a été remplacé</translation>
    </message>
    <message>
        <source>there was nothing to take over</source>
        <translation>il n’y avait rien à prendre en charge</translation>
    </message>
    <message>
        <source>show the counts of what another program prints</source>
        <translation>afficher les chiffres de ce qu’affiche un autre programme</translation>
    </message>
    <message>
        <source>show the counts of files, and update them at every save</source>
        <translation>afficher les chiffres de fichiers, et les mettre à jour à chaque enregistrement</translation>
    </message>
    <message>
        <source>watch the files that were copied last in a file manager</source>
        <translation>surveiller les derniers fichiers copiés dans un gestionnaire de fichiers</translation>
    </message>
    <message>
        <source>the windows have opened</source>
        <translation>les fenêtres se sont ouvertes</translation>
    </message>
    <message>
        <source>a file cannot be watched</source>
        <translation>un fichier ne peut pas être surveillé</translation>
    </message>
    <message>
        <source>Counts the words, characters, sentences, lines on your paper, hard line breaks, paragraphs and indented paragraphs of each FILE by your preferences. Without FILE, or if FILE is -, reads standard input. A pipe that a shell passes by name is read in the same way.</source>
        <translation>Compte, selon vos préférences, les mots, caractères, phrases, lignes sur votre papier, sauts de ligne forcés, paragraphes et paragraphes en retrait de chaque FILE. Sans FILE, ou si FILE est -, lit l’entrée standard. Un tube qu’un shell passe par son nom est lu de la même façon.</translation>
    </message>
    <message>
        <source>instead of the counts, print what they depend on: locale, preferences, paper, margins, and the fonts that the files need (without a file, the font of plain text); with --json an object, whose lengths are in points</source>
        <translation>au lieu des chiffres, afficher ce dont ils dépendent&#xa0;: locale, préférences, papier, marges et les polices dont les fichiers ont besoin (sans fichier, la police du texte brut)&#x202f;; avec --json un objet, dont les longueurs sont en points</translation>
    </message>
    <message>
        <source>Control characters in names are escaped: as \x1b in the table and as \u001b in JSON. With --tsv, tabs, line feeds, carriage returns and backslashes become \t, \n, \r and \\; other control characters and bytes that are not valid UTF-8 become one \x1b per byte. In JSON, a name that is not valid UTF-8 has U+FFFD in place of such bytes, and the member &quot;url&quot; beside it has them percent-encoded, as a file: URL.</source>
        <translation>Les caractères de contrôle des noms sont échappés&#xa0;: \x1b dans le tableau et \u001b en JSON. Avec --tsv, les tabulations, sauts de ligne, retours chariot et barres obliques inverses deviennent \t, \n, \r et \\&#x202f;; les autres caractères de contrôle et les octets qui ne sont pas de l’UTF-8 valide deviennent un \x1b par octet. En JSON, un nom qui n’est pas de l’UTF-8 valide a U+FFFD à la place de ces octets, et le membre &quot;url&quot; à côté les contient encodés en pourcent, comme URL file:.</translation>
    </message>
    <message>
        <source>watch the files as &apos;quillbay watch&apos; does; without FILE, choose them in a dialog</source>
        <translation>surveiller les fichiers comme &apos;quillbay watch&apos;&#x202f;; sans FILE, les choisir dans une boîte de dialogue</translation>
    </message>
    <message>
        <source>Tries what Quillbay needs of this computer and of the desktop, and prints a line for each: ok, note (worth knowing), limited or broken, the name of the check, what it has found, and what to do about it. It starts the programs of Quillbay as the other commands do, opens no window, and waits a few seconds at most for what does not answer.</source>
        <translation>Essaie ce dont Quillbay a besoin de cet ordinateur et du bureau, et affiche une ligne pour chaque point&#xa0;: ok, note (bon à savoir), limited ou broken, le nom du contrôle, ce qu’il a trouvé et ce qu’il faut faire. Il lance les programmes de Quillbay comme les autres commandes, n’ouvre aucune fenêtre et n’attend que quelques secondes ce qui ne répond pas.</translation>
    </message>
    <message>
        <source>The output names no document, and your home folder is ~ in it, so that you can paste it into a report of a fault.</source>
        <translation>La sortie ne nomme aucun document, et votre dossier personnel y est ~, de sorte que vous pouvez la coller dans un rapport d’erreur.</translation>
    </message>
    <message>
        <source>print a JSON object with the worst severity and a list of the findings: the name of each check, its severity, the text and the remedy</source>
        <translation>afficher un objet JSON avec le pire niveau et une liste des constats&#xa0;: le nom de chaque contrôle, son niveau, le texte et le remède</translation>
    </message>
    <message>
        <source>everything works</source>
        <translation>tout fonctionne</translation>
    </message>
    <message>
        <source>something is limited</source>
        <translation>quelque chose est limité</translation>
    </message>
    <message>
        <source>something is broken</source>
        <translation>quelque chose ne marche pas</translation>
    </message>
    <message>
        <source>Opens a small window for each FILE, whose counts follow every save, or raises the window that FILE already has. Watches every kind of file that &apos;quillbay count&apos; counts; the others are reported on standard error and in a desktop notification, and skipped.</source>
        <translation>Ouvre pour chaque FILE une petite fenêtre, dont les chiffres suivent chaque enregistrement, ou met en avant la fenêtre que FILE a déjà. Surveille tous les types de fichiers que compte &apos;quillbay count&apos;&#x202f;; les autres sont signalés sur la sortie d’erreur et dans une notification du bureau, et ignorés.</translation>
    </message>
    <message>
        <source>print what works on this desktop, and how to mend the rest</source>
        <translation>afficher ce qui marche sur ce bureau, et comment réparer le reste</translation>
    </message>
    <message>
        <source>show the counts of files or of standard input</source>
        <translation>afficher les chiffres de fichiers ou de l’entrée standard</translation>
    </message>
    <message>
        <source>Opens a small window with the counts of each FILE. Without FILE, or if FILE is -, reads standard input. FILE can be of every kind that &apos;quillbay count&apos; counts, or the URL of a file on this computer. Files that cannot be counted are reported and skipped, in a desktop notification too.</source>
        <translation>Ouvre une petite fenêtre avec les chiffres de chaque FILE. Sans FILE, ou si FILE est -, lit l’entrée standard. FILE peut être de tous les types que compte &apos;quillbay count&apos;, ou l’URL d’un fichier de cet ordinateur. Les fichiers qui ne peuvent pas être comptés sont signalés et ignorés, aussi dans une notification du bureau.</translation>
    </message>
    <message>
        <source>all windows have opened</source>
        <translation>toutes les fenêtres se sont ouvertes</translation>
    </message>
    <message>
        <source>a window could not be opened</source>
        <translation>une fenêtre n’a pas pu être ouverte</translation>
    </message>
    <message>
        <source>also print these counts, separated by commas: pages, standard-pages, reading-time, speaking-time, graphemes; none prints none of them; without this option, those that your preferences show</source>
        <translation>afficher aussi ces statistiques, séparées par des virgules&#xa0;: pages, standard-pages, reading-time, speaking-time, graphemes&#x202f;; none n’en affiche aucune&#x202f;; sans cette option, celles que vos préférences montrent</translation>
    </message>
    <message>
        <source>count in the counting service, in a sandboxed process, as Quillbay&apos;s windows do; the counts are the same; pages and graphemes are not counted there</source>
        <translation>compter dans le service de comptage, dans un processus isolé, comme le font les fenêtres de Quillbay&#x202f;; les statistiques sont les mêmes&#x202f;; les pages et les graphèmes n’y sont pas comptés</translation>
    </message>
    <message>
        <source>Pages are sheets of your paper, filled with the lines of the text between the top and bottom margins. Standard pages are the characters or words divided by the size that you prefer. Reading and speaking times follow from the words and your speeds; JSON and TSV have them in seconds. Graphemes are the characters that a reader sees, white space included.</source>
        <translation>Les pages sont des feuilles de votre papier, remplies des lignes du texte entre les marges du haut et du bas. Les pages types sont les caractères ou les mots divisés par la taille que vous préférez. Les temps de lecture et de parole découlent des mots et de vos vitesses&#x202f;; JSON et TSV les donnent en secondes. Les graphèmes sont les caractères que voit un lecteur, blancs compris.</translation>
    </message>
    <message>
        <source>print the pages and the time to read it, too</source>
        <translation>afficher aussi les pages et le temps de lecture</translation>
    </message>
    <message>
        <source>20 to 2000 words per minute</source>
        <translation>20 à 2000 mots par minute</translation>
    </message>
    <message>
        <source>such as &apos;1800 characters&apos; or &apos;250 words&apos;; white space counts</source>
        <translation>par exemple &apos;1800 characters&apos; ou &apos;250 words&apos;&#x202f;; les blancs comptent</translation>
    </message>
    <message>
        <source>list the documents that you keep an eye on</source>
        <translation>lister les documents à suivre</translation>
    </message>
    <message>
        <source>Adds each FILE to the list of documents, which the page Documents of the main window shows, too. Without FILE, prints their paths.</source>
        <translation>Ajoute chaque FILE à la liste des documents, que montre aussi la page Documents de la fenêtre principale. Sans FILE, affiche leurs chemins.</translation>
    </message>
    <message>
        <source>The counts of a listed document are kept after every save, so that &apos;quillbay status&apos; knows what today brought, and &apos;quillbay history&apos; each day. Nothing of its text is kept.</source>
        <translation>Les chiffres d’un document de la liste sont conservés après chaque enregistrement&#xa0;: &apos;quillbay status&apos; sait ainsi ce qu’a apporté la journée, et &apos;quillbay history&apos; chaque jour. Rien du texte n’est conservé.</translation>
    </message>
    <message>
        <source>remove each FILE from the list, and forget its goal and its history</source>
        <translation>retirer chaque FILE de la liste, oublier son objectif et son historique</translation>
    </message>
    <message>
        <source>the list was printed or stored</source>
        <translation>la liste a été affichée ou enregistrée</translation>
    </message>
    <message>
        <source>a file is missing, or the list cannot be read or stored</source>
        <translation>un fichier manque, ou la liste ne peut être lue ou enregistrée</translation>
    </message>
    <message>
        <source>keep an eye on all chapters of a novel</source>
        <translation>suivre tous les chapitres d’un roman</translation>
    </message>
    <message>
        <source>set a goal or a limit for a document or a folder</source>
        <translation>fixer un objectif ou une limite à un document ou un dossier</translation>
    </message>
    <message>
        <source>Sets the goal of FILE to NUMBER words, in all or for each day; or the limit, which is reported when it is passed. Without NUMBER, prints both. A folder has the documents of the list that are directly in it.</source>
        <translation>Fixe l’objectif de FILE à NUMBER mots, en tout ou par jour&#x202f;; ou la limite, dont le dépassement est signalé. Sans NUMBER, affiche les deux. Un dossier réunit les documents de la liste qui s’y trouvent directement.</translation>
    </message>
    <message>
        <source>What is deleted counts against the goal for a day. With --added-only it does not: what is added between two saves counts, and what is deleted is left aside.</source>
        <translation>Ce qui est supprimé se déduit de l’objectif du jour. Pas avec --added-only&#xa0;: ce qui est ajouté entre deux enregistrements compte, et ce qui est supprimé est laissé de côté.</translation>
    </message>
    <message>
        <source>count words (the default), characters, all-characters or lines</source>
        <translation>compter words (par défaut), characters, all-characters ou lines</translation>
    </message>
    <message>
        <source>reach the goal until DATE, such as 2026-11-30</source>
        <translation>atteindre l’objectif d’ici à DATE, par exemple 2026-11-30</translation>
    </message>
    <message>
        <source>the goal is for each day, from midnight</source>
        <translation>l’objectif vaut pour chaque jour, à partir de minuit</translation>
    </message>
    <message>
        <source>do not subtract what is deleted</source>
        <translation>ne pas déduire ce qui est supprimé</translation>
    </message>
    <message>
        <source>set or remove the limit</source>
        <translation>fixer ou retirer la limite</translation>
    </message>
    <message>
        <source>remove the goal or the limit</source>
        <translation>retirer l’objectif ou la limite</translation>
    </message>
    <message>
        <source>the goal was printed or stored</source>
        <translation>l’objectif a été affiché ou enregistré</translation>
    </message>
    <message>
        <source>the goal cannot be read or stored</source>
        <translation>l’objectif ne peut être lu ou enregistré</translation>
    </message>
    <message>
        <source>write 50,000 words in a folder until 30 November</source>
        <translation>écrire 50&#x202f;000 mots dans un dossier d’ici au 30 novembre</translation>
    </message>
    <message>
        <source>be told when an abstract has more than 5,000 characters</source>
        <translation>être averti quand un résumé dépasse 5&#x202f;000 caractères</translation>
    </message>
    <message>
        <source>print what each day brought to a document</source>
        <translation>afficher ce que chaque jour a apporté à un document</translation>
    </message>
    <message>
        <source>Prints for each day how many words FILE had at its end, by how many it changed, and how many were added without those that were deleted. FILE is in the list of &apos;quillbay documents&apos;.</source>
        <translation>Affiche pour chaque jour combien de mots FILE avait à la fin, de combien il a changé, et combien ont été ajoutés sans déduire ceux qui ont été supprimés. FILE figure dans la liste de &apos;quillbay documents&apos;.</translation>
    </message>
    <message>
        <source>The counts of a document are kept once a minute at most, and once a day after a year.</source>
        <translation>Les chiffres d’un document sont conservés une fois par minute au plus, et une fois par jour au bout d’un an.</translation>
    </message>
    <message>
        <source>print all counts that are kept, separated by commas</source>
        <translation>afficher tous les chiffres conservés, séparés par des virgules</translation>
    </message>
    <message>
        <source>print a JSON object for each count that is kept</source>
        <translation>afficher un objet JSON pour chaque comptage conservé</translation>
    </message>
    <message>
        <source>forget all counts but the last</source>
        <translation>oublier tous les chiffres sauf les derniers</translation>
    </message>
    <message>
        <source>keep the history of all documents, or only what the changes of the day need</source>
        <translation>conserver l’historique de tous les documents, ou seulement ce qu’exigent les changements du jour</translation>
    </message>
    <message>
        <source>the history was printed or forgotten</source>
        <translation>l’historique a été affiché ou oublié</translation>
    </message>
    <message>
        <source>there is no history of FILE, or it cannot be read or forgotten</source>
        <translation>FILE n’a pas d’historique, ou il ne peut être lu ou oublié</translation>
    </message>
    <message>
        <source>print your documents, what today brought, and their goals</source>
        <translation>afficher vos documents, ce qu’a apporté la journée et leurs objectifs</translation>
    </message>
    <message>
        <source>Prints the words of each document in the list of &apos;quillbay documents&apos;, by how many they have changed since midnight, and what its goal still needs. Counts what was saved since the last time; what has not changed is not read.</source>
        <translation>Affiche les mots de chaque document de la liste de &apos;quillbay documents&apos;, de combien ils ont changé depuis minuit, et ce qui manque encore à son objectif. Compte ce qui a été enregistré depuis la dernière fois&#x202f;; ce qui n’a pas changé n’est pas lu.</translation>
    </message>
    <message>
        <source>print a JSON object with all statistics, for panels and scripts</source>
        <translation>afficher un objet JSON avec tous les chiffres, pour les barres et les scripts</translation>
    </message>
    <message>
        <source>all documents were counted</source>
        <translation>tous les documents ont été comptés</translation>
    </message>
    <message>
        <source>a document could not be counted</source>
        <translation>un document n’a pas pu être compté</translation>
    </message>
    <message>
        <source>read plain text as Markdown, without its marks, front matter, comments, code blocks and link targets</source>
        <translation>lire le texte brut comme du Markdown, sans ses marques, ses métadonnées en tête, ses commentaires, ses blocs de code et les cibles des liens</translation>
    </message>
    <message>
        <source>read plain text as LaTeX, without its commands, formulas, comments, listings and references; with --markdown, only files named .tex, .ltx or .latex</source>
        <translation>lire le texte brut comme du LaTeX, sans ses commandes, formules, commentaires, listings et références&#x202f;; avec --markdown, seulement les fichiers nommés .tex, .ltx ou .latex</translation>
    </message>
    <message>
        <source>count the words that a reader of the pages sees</source>
        <translation>compter les mots que voit un lecteur des pages</translation>
    </message>
    <message>
        <source>count words and characters as PROGRAM does: libreoffice (LibreOffice Writer), word-processor (words between white space) or quillbay</source>
        <translation>compter les mots et les caractères comme PROGRAM&#xa0;: libreoffice (LibreOffice Writer), word-processor (mots entre blancs) ou quillbay</translation>
    </message>
    <message>
        <source>count a hyphenated word as one, or its parts as several</source>
        <translation>compter un mot à trait d’union comme un seul (one), ou ses parties (several)</translation>
    </message>
    <message>
        <source>count each web address as one word, or none</source>
        <translation>compter chaque adresse web comme un mot (one), ou aucun (none)</translation>
    </message>
    <message>
        <source>each of these characters ends a word, too</source>
        <translation>chacun de ces caractères termine aussi un mot</translation>
    </message>
    <message>
        <source>print only these counts, in this order, separated by commas: words, characters, all-characters, sentences, lines, hard-line-breaks, paragraphs, indents, and those of --also</source>
        <translation>n’afficher que ces statistiques, dans cet ordre, séparées par des virgules&#xa0;: words, characters, all-characters, sentences, lines, hard-line-breaks, paragraphs, indents, et celles de --also</translation>
    </message>
    <message>
        <source>print the files with the largest COUNT first, such as words; or by name, with name</source>
        <translation>afficher d’abord les fichiers dont la statistique COUNT est la plus grande, par exemple words&#x202f;; ou par nom, avec name</translation>
    </message>
    <message>
        <source>compare all files together with a number of words, or with another count, such as &apos;5000 characters&apos;; the table ends with what remains</source>
        <translation>comparer tous les fichiers ensemble à un nombre de mots, ou à une autre statistique, par exemple &apos;5000 characters&apos;&#x202f;; le tableau finit par ce qui reste</translation>
    </message>
    <message>
        <source>count the files below each FILE that is a folder, or below this folder, but not what a .gitignore ignores, symbolic links, and what is no text</source>
        <translation>compter les fichiers sous chaque FILE qui est un dossier, ou sous ce dossier, mais ni ce qu’un .gitignore ignore, ni les liens symboliques, ni ce qui n’est pas du texte</translation>
    </message>
    <message>
        <source>with --recursive, count only files with such a name, as &apos;*.md&apos;; can be given several times</source>
        <translation>avec --recursive, ne compter que les fichiers portant un tel nom, comme &apos;*.md&apos;&#x202f;; peut être donné plusieurs fois</translation>
    </message>
    <message>
        <source>the goal has not been reached</source>
        <translation>l’objectif n’est pas atteint</translation>
    </message>
</context>
<context>
    <name>PageSizeForMeasuringPreviewViewController</name>
    <message>
        <source>%1 x %2 inches</source>
        <translation>%1 × %2 pouces</translation>
    </message>
</context>
<context>
    <name>PaperListModel</name>
    <message>
        <source>%1 (not available)</source>
        <translation>%1 (non disponible)</translation>
    </message>
    <message>
        <source>%1 (%2 × %3, custom)</source>
        <translation>%1 (%2 × %3, personnalisé)</translation>
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
        <translation>&amp;Papier&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Left margin:</source>
        <translation>Marge &amp;gauche&#xa0;:</translation>
    </message>
    <message>
        <source>At most so wide that a column is left.</source>
        <translation>Au plus assez large pour laisser une colonne.</translation>
    </message>
    <message>
        <source>&amp;Right margin:</source>
        <translation>Marge d&amp;roite&#xa0;:</translation>
    </message>
    <message>
        <source>Shows the text of the clipboard on the page.</source>
        <translation>Affiche le texte du presse-papiers sur la page.</translation>
    </message>
    <message>
        <source>Show C&amp;opied Text</source>
        <translation>Afficher le texte c&amp;opié</translation>
    </message>
    <message>
        <source>Show &amp;Sample Text</source>
        <translation>Afficher l’e&amp;xemple</translation>
    </message>
    <message>
        <source>Preview of the page</source>
        <translation>Aperçu de la page</translation>
    </message>
    <message>
        <source>Left Margin</source>
        <translation>Marge gauche</translation>
    </message>
    <message>
        <source>Right Margin</source>
        <translation>Marge droite</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>Asking the printing system for the papers of your printer…</source>
        <translation>Le système d’impression est interrogé sur les papiers de votre imprimante…</translation>
    </message>
    <message>
        <source>These are the papers of your printer.</source>
        <translation>Voici les papiers de votre imprimante.</translation>
    </message>
    <message>
        <source>There is no printer, so these are common papers.</source>
        <translation>Il n’y a pas d’imprimante&#x202f;; voici donc des papiers courants.</translation>
    </message>
    <message>
        <source>The printing system does not answer, so these are common papers.</source>
        <translation>Le système d’impression ne répond pas&#x202f;; voici donc des papiers courants.</translation>
    </message>
    <message>
        <source>The margins leave no column on this paper, so lines are measured in the column before. Make the margins smaller.</source>
        <translation>Les marges ne laissent pas de colonne sur ce papier&#x202f;; les lignes sont donc mesurées dans la colonne précédente. Réduisez les marges.</translation>
    </message>
    <message>
        <source>Your paper is not available, so lines are measured on a page of %1 × %2.</source>
        <translation>Votre papier n’est pas disponible&#x202f;; les lignes sont donc mesurées sur une page de %1 × %2.</translation>
    </message>
    <message>
        <source>No paper has been chosen yet, so lines are measured on %1.</source>
        <translation>Aucun papier n’est encore choisi&#x202f;; les lignes sont donc mesurées sur %1.</translation>
    </message>
    <message>
        <source>Lines are measured on %1.</source>
        <translation>Les lignes sont mesurées sur %1.</translation>
    </message>
</context>
<context>
    <name>QBYServiceProviderShowStatsWindowController</name>
    <message>
        <source>Counting</source>
        <translation>Comptage en cours</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>RulesEditor</name>
    <message>
        <source>Restore Defaults</source>
        <translation>Rétablir les valeurs par défaut</translation>
    </message>
</context>
<context>
    <name>RulesPage</name>
    <message>
        <source>Statistics to Show</source>
        <translation>Statistiques à afficher</translation>
    </message>
    <message>
        <source>Words are always shown.</source>
        <translation>Les mots sont toujours affichés.</translation>
    </message>
    <message>
        <source>&amp;Characters</source>
        <translation>&amp;Caractères</translation>
    </message>
    <message>
        <source>Characters including &amp;white space</source>
        <translation>Caractères, &amp;blancs compris</translation>
    </message>
    <message>
        <source>Can be shown only together with the characters. Showing or hiding the characters shows or hides these too.</source>
        <translation>Ne peut être affiché qu’avec les caractères. Afficher ou masquer les caractères affiche ou masque aussi ceux-ci.</translation>
    </message>
    <message>
        <source>&amp;Sentences</source>
        <translation>&amp;Phrases</translation>
    </message>
    <message>
        <source>&amp;Lines on the page</source>
        <translation>&amp;Lignes sur la page</translation>
    </message>
    <message>
        <source>Hard line &amp;breaks</source>
        <translation>&amp;Sauts de ligne forcés</translation>
    </message>
    <message>
        <source>&amp;Paragraphs</source>
        <translation>Paragr&amp;aphes</translation>
    </message>
    <message>
        <source>&amp;Indented paragraphs</source>
        <translation>Paragraphes en &amp;retrait</translation>
    </message>
    <message>
        <source>Sentences and Paragraphs</source>
        <translation>Phrases et paragraphes</translation>
    </message>
    <message>
        <source>Count only sentences that end in terminal punc&amp;tuation</source>
        <translation>Ne compter que les phrases terminées par une p&amp;onctuation finale</translation>
    </message>
    <message>
        <source>A full stop, question mark or exclamation mark. Without this rule, headings are sentences too.</source>
        <translation>Un point, un point d’interrogation ou un point d’exclamation. Sans cette règle, les titres sont aussi des phrases.</translation>
    </message>
    <message>
        <source>&amp;Minimum number of sentences in a paragraph:</source>
        <translation>Nombre &amp;minimal de phrases dans un paragraphe&#xa0;:</translation>
    </message>
    <message>
        <source>Paragraphs with fewer sentences are not counted. With 0, all are.</source>
        <translation>Les paragraphes qui ont moins de phrases ne sont pas comptés. Avec 0, ils le sont tous.</translation>
    </message>
    <message>
        <source>Watched Files</source>
        <translation>Fichiers surveillés</translation>
    </message>
    <message>
        <source>Spea&amp;k the number of words when it changes</source>
        <translation>É&amp;noncer le nombre de mots quand il change</translation>
    </message>
    <message>
        <source>Speak a S&amp;ample</source>
        <translation>Écouter &amp;un exemple</translation>
    </message>
    <message>
        <source>Gives all rules, paper and margins the values of a new user. Undo brings yours back.</source>
        <translation>Donne à toutes les règles, au papier et aux marges leurs valeurs initiales. «&#xa0;Annuler&#xa0;» ramène les vôtres.</translation>
    </message>
    <message>
        <source>Restore &amp;Defaults</source>
        <translation>Ré&amp;tablir les valeurs par défaut</translation>
    </message>
    <message>
        <source>Minimum Number of Sentences</source>
        <translation>Nombre minimal de phrases</translation>
    </message>
    <message>
        <source>No speech program is installed: %1 does not exist. Nothing will be spoken.</source>
        <translation>Aucun programme de synthèse vocale n’est installé&#xa0;: %1 n’existe pas. Rien ne sera énoncé.</translation>
    </message>
</context>
<context>
    <name>ShortcutPage</name>
    <message>
        <source>&amp;Count the selected text of any application when I press keys</source>
        <translation>&amp;Compter le texte sélectionné de toute application par un raccourci</translation>
    </message>
    <message>
        <source>&amp;Keys:</source>
        <translation>&amp;Touches&#xa0;:</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Touches</translation>
    </message>
    <message>
        <source>The keys are stored in the settings of your desktop. You can change them there too.</source>
        <translation>Les touches sont enregistrées dans les réglages de votre bureau. Vous pouvez aussi les y changer.</translation>
    </message>
    <message>
        <source>Quillbay cannot change the shortcuts of this desktop. To count the selected text of any application when you press keys, bind this &amp;command to them in the desktop&apos;s own settings:</source>
        <translation>Quillbay ne peut pas changer les raccourcis de ce bureau. Pour compter le texte sélectionné de toute application par un raccourci, associez cette &amp;commande à des touches dans les réglages du bureau&#xa0;:</translation>
    </message>
    <message>
        <source>Click the keys, then press Ctrl, Alt or Meta together with another key.</source>
        <translation>Cliquez sur les touches, puis appuyez sur Ctrl, Alt ou Meta avec une autre touche.</translation>
    </message>
    <message>
        <source>The settings of %1 cannot be used: %2.</source>
        <translation>Les réglages de %1 sont inutilisables&#xa0;: %2.</translation>
    </message>
    <message>
        <source>%1 is used for “%2” in %3, so it was not changed. Choose other keys.</source>
        <translation>%1 sert déjà à «&#xa0;%2&#xa0;» dans %3 et n’a pas été changé. Choisissez d’autres touches.</translation>
    </message>
    <message>
        <source>No keys count the selected text.</source>
        <translation>Aucun raccourci ne compte le texte sélectionné.</translation>
    </message>
    <message>
        <source>Select text anywhere and press %1.</source>
        <translation>Sélectionnez du texte n’importe où et appuyez sur %1.</translation>
    </message>
</context>
<context>
    <name>SpeechSample</name>
    <message>
        <source>%1 failed.</source>
        <translation>%1 a échoué.</translation>
    </message>
</context>
<context>
    <name>TextSource</name>
    <message>
        <source>there is no text that can be read</source>
        <translation>il n’y a pas de texte lisible</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Pasted text</source>
        <translation>Texte collé</translation>
    </message>
</context>
<context>
    <name>WaitNotice</name>
    <message>
        <source>Still reading the text.</source>
        <translation>Lecture du texte toujours en cours.</translation>
    </message>
    <message>
        <source>Still waiting for the counting service.</source>
        <translation>Le service de comptage n’a pas encore répondu.</translation>
    </message>
</context>
<context>
    <name>WatchTextFileViewController</name>
    <message>
        <source>Counting</source>
        <translation>Comptage en cours</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Stop watching this file</source>
        <translation>Ne plus surveiller ce fichier</translation>
    </message>
</context>
<context>
    <name>WhyPage</name>
    <message>
        <source>&amp;Open a Text…</source>
        <translation>&amp;Ouvrir un texte…</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Coller</translation>
    </message>
    <message>
        <source>Open, paste or drop a text to see why its counts are what they are.</source>
        <translation>Ouvrez, collez ou déposez un texte pour voir d’où viennent ses chiffres.</translation>
    </message>
    <message>
        <source>Reading the text</source>
        <translation>Lecture du texte</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>Counts</source>
        <translation>Chiffres</translation>
    </message>
    <message>
        <source>Choose a count to have it marked in the text. A click on the chosen one, or Enter, goes to its next item.</source>
        <translation>Choisissez un chiffre pour le marquer dans le texte. Un clic sur celui qui est choisi, ou Entrée, mène à l’élément suivant.</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Quoi</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>To the previous item (Shift+F3)</source>
        <translation>À l’élément précédent (Maj+F3)</translation>
    </message>
    <message>
        <source>Pre&amp;vious</source>
        <translation>&amp;Précédent</translation>
    </message>
    <message>
        <source>To the next item (F3)</source>
        <translation>À l’élément suivant (F3)</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Suivant</translation>
    </message>
    <message>
        <source>Only what is not co&amp;unted</source>
        <translation>Seulement ce qui n’est pas co&amp;mpté</translation>
    </message>
    <message>
        <source>Straight and dotted lines: counted. Wavy lines: not counted.</source>
        <translation>Lignes droites et pointillées&#xa0;: compté. Lignes ondulées&#xa0;: non compté.</translation>
    </message>
    <message>
        <source>Words</source>
        <translation>Mots</translation>
    </message>
    <message>
        <source>Characters</source>
        <translation>Caractères</translation>
    </message>
    <message>
        <source>Characters including white space</source>
        <translation>Caractères, blancs compris</translation>
    </message>
    <message>
        <source>Sentences</source>
        <translation>Phrases</translation>
    </message>
    <message>
        <source>Lines on the page</source>
        <translation>Lignes sur la page</translation>
    </message>
    <message>
        <source>Hard line breaks</source>
        <translation>Sauts de ligne forcés</translation>
    </message>
    <message>
        <source>Paragraphs</source>
        <translation>Paragraphes</translation>
    </message>
    <message>
        <source>Indented paragraphs</source>
        <translation>Paragraphes en retrait</translation>
    </message>
    <message>
        <source>The counting service does not answer. Is Quillbay installed completely?</source>
        <translation>Le service de comptage ne répond pas. Quillbay est-il installé entièrement&#x202f;?</translation>
    </message>
    <message>
        <source>Open a Text</source>
        <translation>Ouvrir un texte</translation>
    </message>
    <message>
        <source>There is no text on the clipboard.</source>
        <translation>Il n’y a pas de texte dans le presse-papiers.</translation>
    </message>
    <message>
        <source>Reading %1 …</source>
        <translation>Lecture de %1…</translation>
    </message>
    <message>
        <source>Pasted text</source>
        <translation>Texte collé</translation>
    </message>
    <message>
        <source>The text is too long to be shown and marked to its end. The counts are of all of it.</source>
        <translation>Le texte est trop long pour être affiché et marqué jusqu’au bout. Les chiffres portent sur le texte entier.</translation>
    </message>
    <message>
        <source>There are no more of them after this place.</source>
        <translation>Il n’y en a plus après cet endroit.</translation>
    </message>
    <message>
        <source>There are no more of them before this place.</source>
        <translation>Il n’y en a plus avant cet endroit.</translation>
    </message>
    <message>
        <source>Reading the clipboard …</source>
        <translation>Lecture du presse-papiers…</translation>
    </message>
    <message>
        <source>Reading what was dropped …</source>
        <translation>Lecture de ce qui a été déposé…</translation>
    </message>
    <message>
        <source>Item %1 of %2 (%3 of them counted):</source>
        <translation>Élément %1 sur %2 (dont %3 comptés)&#xa0;:</translation>
    </message>
</context>
<context>
    <name>WhyTextView</name>
    <message>
        <source>“%1” is counted: %2.</source>
        <translation>«&#xa0;%1&#xa0;» est compté&#xa0;: %2.</translation>
    </message>
    <message>
        <source>“%1” is not counted: %2.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas compté&#xa0;: %2.</translation>
    </message>
</context>
<context>
    <name>WindowWidget</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
</context>
<context>
    <name>WordCounterStatStringFormatter</name>
    <message>
        <source>•Word Count: %1</source>
        <translation>•Nombre de mots&#xa0;: %1</translation>
    </message>
    <message>
        <source>•Words: %1</source>
        <translation>•Mots&#xa0;: %1</translation>
    </message>
    <message>
        <source>•Character Count: %1</source>
        <translation>•Nombre de caractères&#xa0;: %1</translation>
    </message>
    <message>
        <source>•Characters: %1</source>
        <translation>•Caractères&#xa0;: %1</translation>
    </message>
    <message>
        <source>•Including Whitespace Count: %1</source>
        <translation>•Nombre, blancs compris&#xa0;: %1</translation>
    </message>
    <message>
        <source>•Chars (+Whitespace): %1</source>
        <translation>•Caract. (+blancs)&#xa0;: %1</translation>
    </message>
    <message>
        <source>•Sentence Count: %1</source>
        <translation>•Nombre de phrases&#xa0;: %1</translation>
    </message>
    <message>
        <source>•Sentences: %1</source>
        <translation>•Phrases&#xa0;: %1</translation>
    </message>
    <message>
        <source>•Line Count: %1</source>
        <translation>•Nombre de lignes&#xa0;: %1</translation>
    </message>
    <message>
        <source>•Lines: %1</source>
        <translation>•Lignes&#xa0;: %1</translation>
    </message>
    <message>
        <source>•Hard Line Break Count: %1</source>
        <translation>•Nombre de sauts de ligne forcés&#xa0;: %1</translation>
    </message>
    <message>
        <source>•Lines (Hard Break): %1</source>
        <translation>•Lignes (saut forcé)&#xa0;: %1</translation>
    </message>
    <message>
        <source>•Paragraph Count: %1</source>
        <translation>•Nombre de paragraphes&#xa0;: %1</translation>
    </message>
    <message>
        <source>•Paragraphs: %1</source>
        <translation>•Paragraphes&#xa0;: %1</translation>
    </message>
    <message>
        <source>•Indented Paragraph Count: %1</source>
        <translation>•Nombre de paragraphes en retrait&#xa0;: %1</translation>
    </message>
    <message>
        <source>•Indented Paragraphs: %1</source>
        <translation>•Paragraphes en retrait&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>command</name>
    <message>
        <source>missing argument for option &apos;%1&apos;</source>
        <translation>argument manquant pour l’option &apos;%1&apos;</translation>
    </message>
    <message>
        <source>invalid option &apos;%1&apos;</source>
        <translation>option &apos;%1&apos; invalide</translation>
    </message>
    <message>
        <source>Try &apos;%1 --help&apos; for more.</source>
        <translation>&apos;%1 --help&apos; en dit plus.</translation>
    </message>
    <message>
        <source>--json and --tsv cannot be combined</source>
        <translation>--json et --tsv s’excluent</translation>
    </message>
    <message>
        <source>--files-from can be given only once</source>
        <translation>--files-from ne peut être indiqué qu’une fois</translation>
    </message>
    <message>
        <source>--service and --explain-rules cannot be combined</source>
        <translation>--service et --explain-rules s’excluent</translation>
    </message>
    <message>
        <source>--explain-rules prints a table or, with --json, an object; leave out --tsv</source>
        <translation>--explain-rules affiche un tableau ou, avec --json, un objet&#x202f;; omettez --tsv</translation>
    </message>
    <message>
        <source>standard input cannot be both a document and the list of files</source>
        <translation>l’entrée standard ne peut pas être à la fois un document et la liste des fichiers</translation>
    </message>
    <message>
        <source>standard output</source>
        <translation>sortie standard</translation>
    </message>
    <message>
        <source>Words</source>
        <translation>Mots</translation>
    </message>
    <message>
        <source>Characters</source>
        <translation>Caractères</translation>
    </message>
    <message>
        <source>+Whitespace</source>
        <translation>+blancs</translation>
    </message>
    <message>
        <source>Sentences</source>
        <translation>Phrases</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Lignes</translation>
    </message>
    <message>
        <source>Hard breaks</source>
        <translation>Sauts</translation>
    </message>
    <message>
        <source>Paragraphs</source>
        <translation>Paragraphes</translation>
    </message>
    <message>
        <source>Indented</source>
        <translation>En retrait</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>total</source>
        <translation>total</translation>
    </message>
    <message>
        <source>%1 points</source>
        <translation>%1 points</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Colonne</translation>
    </message>
    <message>
        <source>Locale</source>
        <translation>Locale</translation>
    </message>
    <message>
        <source>Sentences end in punctuation</source>
        <translation>Phrases terminées par une ponctuation</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>oui</translation>
    </message>
    <message>
        <source>no</source>
        <translation>non</translation>
    </message>
    <message>
        <source>Sentences of a paragraph, at least</source>
        <translation>Phrases d’un paragraphe, au moins</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>of the print settings</source>
        <translation>des réglages d’impression</translation>
    </message>
    <message>
        <source>Paper width</source>
        <translation>Largeur du papier</translation>
    </message>
    <message>
        <source>Paper height</source>
        <translation>Hauteur du papier</translation>
    </message>
    <message>
        <source>Left margin</source>
        <translation>Marge gauche</translation>
    </message>
    <message>
        <source>Right margin</source>
        <translation>Marge droite</translation>
    </message>
    <message>
        <source>none: the margins leave no width</source>
        <translation>aucune&#xa0;: les marges ne laissent pas de largeur</translation>
    </message>
    <message>
        <source>Pixels per point</source>
        <translation>Pixels par point</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Police</translation>
    </message>
    <message>
        <source>none: lines are measured with a fixed character width</source>
        <translation>aucune&#xa0;: les lignes sont mesurées avec une largeur de caractère fixe</translation>
    </message>
    <message>
        <source>doctor takes no file</source>
        <translation>doctor ne prend pas de fichier</translation>
    </message>
    <message>
        <source>%1: cannot be written (%2), so the default rules apply; make the folder writable to set your own</source>
        <translation>%1&#xa0;: écriture impossible (%2)&#x202f;; les règles par défaut s’appliquent&#x202f;; rendez le dossier accessible en écriture pour définir les vôtres</translation>
    </message>
    <message>
        <source>not counted: %1</source>
        <translation>non compté&#xa0;: %1</translation>
    </message>
    <message>
        <source>unknown command &apos;%1&apos;</source>
        <translation>commande &apos;%1&apos; inconnue</translation>
    </message>
    <message>
        <source>one command at a time</source>
        <translation>une seule commande à la fois</translation>
    </message>
    <message>
        <source>no command given</source>
        <translation>aucune commande indiquée</translation>
    </message>
    <message>
        <source>not counted: %1 and %2 more: %3</source>
        <translation>non compté&#xa0;: %1 et %2 autres&#xa0;: %3</translation>
    </message>
    <message>
        <source>not counted: %1: %2</source>
        <translation>non compté&#xa0;: %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>no preference is called &apos;%1&apos;; &apos;quillbay preferences&apos; lists them</source>
        <translation>aucune préférence ne s’appelle &apos;%1&apos;&#x202f;; &apos;quillbay preferences&apos; en donne la liste</translation>
    </message>
    <message>
        <source>%1: cannot be written: %2; check the permissions and the free space of its folder</source>
        <translation>%1&#xa0;: écriture impossible&#xa0;: %2&#x202f;; vérifiez les droits et l’espace libre de son dossier</translation>
    </message>
    <message>
        <source>its default is unknown while the printer does not answer; retry later</source>
        <translation>sa valeur par défaut est inconnue tant que l’imprimante ne répond pas&#x202f;; réessayez plus tard</translation>
    </message>
    <message>
        <source>--reset and --reset-all cannot be combined</source>
        <translation>--reset et --reset-all s’excluent</translation>
    </message>
    <message>
        <source>--json only prints</source>
        <translation>--json ne fait qu’afficher</translation>
    </message>
    <message>
        <source>--reset needs a name</source>
        <translation>--reset demande un nom</translation>
    </message>
    <message>
        <source>--reset-all takes no names</source>
        <translation>--reset-all ne prend pas de noms</translation>
    </message>
    <message>
        <source>one name and one value at a time</source>
        <translation>un seul nom et une seule valeur à la fois</translation>
    </message>
    <message>
        <source>%1 is neither on nor off; use one of them</source>
        <translation>%1 n’est ni on ni off&#x202f;; indiquez l’un des deux</translation>
    </message>
    <message>
        <source>%1 is not a length; use one such as 1in, 25.4mm, 2.5cm or 72pt</source>
        <translation>%1 n’est pas une longueur&#x202f;; indiquez-en une comme 1in, 25.4mm, 2.5cm ou 72pt</translation>
    </message>
    <message>
        <source>%1 leaves no column on the page; use at most %2in</source>
        <translation>%1 ne laisse pas de colonne sur la page&#x202f;; indiquez au plus %2in</translation>
    </message>
    <message>
        <source>%1 is no paper of your printer; use one of %2</source>
        <translation>%1 n’est pas un papier de votre imprimante&#x202f;; choisissez parmi %2</translation>
    </message>
    <message>
        <source>%1 is no common paper, and no printer answers; use one of %2</source>
        <translation>%1 n’est pas un papier courant, et aucune imprimante ne répond&#x202f;; choisissez parmi %2</translation>
    </message>
    <message>
        <source>the margins of %1in and %2in leave no column on %3; make them smaller first</source>
        <translation>les marges de %1in et %2in ne laissent pas de colonne sur %3&#x202f;; réduisez-les d’abord</translation>
    </message>
    <message>
        <source>reading standard input; Ctrl+D on an empty line ends it</source>
        <translation>lecture de l’entrée standard&#x202f;; Ctrl+D sur une ligne vide la termine</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>entrée standard</translation>
    </message>
    <message>
        <source>counting %1</source>
        <translation>comptage&#xa0;: %1</translation>
    </message>
    <message>
        <source>reading %1</source>
        <translation>lecture&#xa0;: %1</translation>
    </message>
    <message>
        <source>selection takes no file; use &apos;quillbay text FILE&apos;</source>
        <translation>selection ne prend pas de fichier&#x202f;; utilisez &apos;quillbay text FILE&apos;</translation>
    </message>
    <message>
        <source>there is no display for the window; run this in a terminal of your desktop, or use &apos;quillbay count&apos;, which needs none</source>
        <translation>il n’y a pas d’écran pour la fenêtre&#x202f;; lancez ceci dans un terminal de votre bureau, ou utilisez &apos;quillbay count&apos;, qui n’en a pas besoin</translation>
    </message>
    <message>
        <source>there is no session bus, which opens the window; log in to a desktop, or use &apos;quillbay count&apos;, which needs none</source>
        <translation>il n’y a pas de bus de session, qui ouvre la fenêtre&#x202f;; ouvrez une session sur un bureau, ou utilisez &apos;quillbay count&apos;, qui n’en a pas besoin</translation>
    </message>
    <message>
        <source>%1; run &apos;quillbay doctor&apos; to find out why</source>
        <translation>%1&#x202f;; &apos;quillbay doctor&apos; en trouve la raison</translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <translation>%1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>the copied files are not on this computer; copy them here and watch the copies</source>
        <translation>les fichiers copiés ne sont pas sur cet ordinateur&#x202f;; copiez-les ici et surveillez les copies</translation>
    </message>
    <message>
        <source>either --clipboard or files, not both</source>
        <translation>soit --clipboard, soit des fichiers, pas les deux</translation>
    </message>
    <message>
        <source>no file given</source>
        <translation>aucun fichier indiqué</translation>
    </message>
    <message>
        <source>Another file is left out too.</source>
        <translation>Un autre fichier est aussi laissé de côté.</translation>
    </message>
    <message>
        <source>%1 other files are left out too.</source>
        <translation>%1 autres fichiers sont aussi laissés de côté.</translation>
    </message>
    <message>
        <source>--also knows no &apos;%1&apos;; use none, or some of %2</source>
        <translation>--also ne connaît pas &apos;%1&apos;&#x202f;; utilisez none, ou certains de %2</translation>
    </message>
    <message>
        <source>--service does not count %1; leave out one of them</source>
        <translation>--service ne compte pas %1&#x202f;; retirez l’un des deux</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Standard pages</source>
        <translation>Pages types</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>Lecture</translation>
    </message>
    <message>
        <source>Speaking</source>
        <translation>Parole</translation>
    </message>
    <message>
        <source>Graphemes</source>
        <translation>Graphemes</translation>
    </message>
    <message>
        <source>%1 is not a number from %2 to %3; use one</source>
        <translation>%1 n’est pas un nombre de %2 à %3&#x202f;; indiquez-en un</translation>
    </message>
    <message>
        <source>%1 is no standard page; use one such as &apos;1800 characters&apos; or &apos;250 words&apos;</source>
        <translation>%1 n’est pas une page type&#x202f;; utilisez-en une comme &apos;1800 characters&apos; ou &apos;250 words&apos;</translation>
    </message>
    <message>
        <source>Top margin</source>
        <translation>Marge du haut</translation>
    </message>
    <message>
        <source>Bottom margin</source>
        <translation>Marge du bas</translation>
    </message>
    <message>
        <source>Standard page</source>
        <translation>Page type</translation>
    </message>
    <message>
        <source>Words read per minute</source>
        <translation>Mots lus par minute</translation>
    </message>
    <message>
        <source>Words spoken per minute</source>
        <translation>Mots dits par minute</translation>
    </message>
    <message>
        <source>%1: there is no such file; check its name</source>
        <translation>%1&#xa0;: ce fichier n’existe pas&#x202f;; vérifiez son nom</translation>
    </message>
    <message>
        <source>the list is full; remove documents with &apos;quillbay documents --remove&apos;</source>
        <translation>la liste est pleine&#x202f;; &apos;quillbay documents --remove&apos; en retire des documents</translation>
    </message>
    <message>
        <source>one file and one number at a time</source>
        <translation>un seul fichier et un seul nombre à la fois</translation>
    </message>
    <message>
        <source>--remove takes no number</source>
        <translation>--remove ne prend pas de nombre</translation>
    </message>
    <message>
        <source>no number given</source>
        <translation>aucun nombre indiqué</translation>
    </message>
    <message>
        <source>a limit has neither --day nor --by</source>
        <translation>une limite n’a ni --day ni --by</translation>
    </message>
    <message>
        <source>--day and --by cannot be combined</source>
        <translation>--day et --by ne peuvent être combinés</translation>
    </message>
    <message>
        <source>--added-only needs --day</source>
        <translation>--added-only exige --day</translation>
    </message>
    <message>
        <source>Goal: %1</source>
        <translation>Objectif&#xa0;: %1</translation>
    </message>
    <message>
        <source>Limit: %1</source>
        <translation>Limite&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 has neither a goal nor a limit.</source>
        <translation>%1 n’a ni objectif ni limite.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a number from 1 to %2</source>
        <translation>&apos;%1&apos; n’est pas un nombre de 1 à %2</translation>
    </message>
    <message>
        <source>--of takes words, characters, all-characters or lines</source>
        <translation>--of prend words, characters, all-characters ou lines</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a date such as 2026-11-30</source>
        <translation>&apos;%1&apos; n’est pas une date comme 2026-11-30</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Jour</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Évolution</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Ajoutés</translation>
    </message>
    <message>
        <source>--keep takes on or off</source>
        <translation>--keep prend on ou off</translation>
    </message>
    <message>
        <source>--keep takes no file</source>
        <translation>--keep ne prend pas de fichier</translation>
    </message>
    <message>
        <source>one file at a time</source>
        <translation>un seul fichier à la fois</translation>
    </message>
    <message>
        <source>--csv and --json cannot be combined</source>
        <translation>--csv et --json ne peuvent être combinés</translation>
    </message>
    <message>
        <source>%1: has no history; add it with &apos;quillbay documents&apos;, then save it while its window is open or run &apos;quillbay status&apos;</source>
        <translation>%1&#xa0;: n’a pas d’historique&#x202f;; ajoutez-le avec &apos;quillbay documents&apos;, puis enregistrez-le pendant que sa fenêtre est ouverte ou exécutez &apos;quillbay status&apos;</translation>
    </message>
    <message>
        <source>%1: cannot be used: %2; check the permissions and the free space of its folder</source>
        <translation>%1&#xa0;: n’est pas utilisable&#xa0;: %2&#x202f;; vérifiez les droits et l’espace libre de son dossier</translation>
    </message>
    <message>
        <source>%1: is damaged; it was renamed to %2, and a new list of documents begun</source>
        <translation>%1&#xa0;: est endommagé&#x202f;; il a été renommé %2, et une nouvelle liste des documents commencée</translation>
    </message>
    <message>
        <source>not counted yet</source>
        <translation>pas encore compté</translation>
    </message>
    <message>
        <source>more than %1</source>
        <translation>plus de %1</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Aujourd’hui</translation>
    </message>
    <message>
        <source>takes no file</source>
        <translation>ne prend pas de fichier</translation>
    </message>
    <message>
        <source>no documents; add some with &apos;quillbay documents FILE…&apos;</source>
        <translation>aucun document&#x202f;; ajoutez-en avec &apos;quillbay documents FILE…&apos;</translation>
    </message>
    <message>
        <source>--%1 knows no &apos;%2&apos;; use one of %3</source>
        <translation>--%1 ne connaît pas &apos;%2&apos;&#x202f;; utilisez l’un de %3</translation>
    </message>
    <message>
        <source>--service counts words by Quillbay&apos;s own rules; leave out the other rules</source>
        <translation>--service compte les mots selon les règles de Quillbay&#x202f;; retirez les autres règles</translation>
    </message>
    <message>
        <source>--also and --columns cannot be combined; name all counts in --columns</source>
        <translation>--also et --columns ne peuvent pas être combinés&#x202f;; nommez toutes les statistiques dans --columns</translation>
    </message>
    <message>
        <source>--include needs --recursive</source>
        <translation>--include demande --recursive</translation>
    </message>
    <message>
        <source>%1: goal %2, reached with %3 more</source>
        <translation>%1&#xa0;: objectif %2, atteint, %3 de plus</translation>
    </message>
    <message>
        <source>%1: goal %2, %3 to go</source>
        <translation>%1&#xa0;: objectif %2, encore %3</translation>
    </message>
    <message>
        <source>--columns knows no &apos;%1&apos;; use some of %2</source>
        <translation>--columns ne connaît pas &apos;%1&apos;&#x202f;; utilisez certains de %2</translation>
    </message>
    <message>
        <source>--sort knows no &apos;%1&apos;; use name or one of %2</source>
        <translation>--sort ne connaît pas &apos;%1&apos;&#x202f;; utilisez name ou l’un de %2</translation>
    </message>
    <message>
        <source>%1 is no goal; use a number, or one such as &apos;5000 characters&apos;</source>
        <translation>%1 n’est pas un objectif&#x202f;; utilisez un nombre, ou un objectif comme &apos;5000 characters&apos;</translation>
    </message>
</context>
<context>
    <name>counting_service</name>
    <message>
        <source>the request has no document</source>
        <translation>la demande ne contient pas de document</translation>
    </message>
    <message>
        <source>is not a memory file sealed against writing and shrinking</source>
        <translation>n’est pas un fichier mémoire scellé contre l’écriture et la réduction</translation>
    </message>
    <message>
        <source>is not as long as its sender said</source>
        <translation>n’a pas la longueur indiquée par l’expéditeur</translation>
    </message>
    <message>
        <source>is larger than the service accepts</source>
        <translation>dépasse ce que le service accepte</translation>
    </message>
    <message>
        <source>could not be received</source>
        <translation>n’a pas pu être reçu</translation>
    </message>
    <message>
        <source>is of a type that the counting service does not read</source>
        <translation>est d’un type que le service de comptage ne lit pas</translation>
    </message>
    <message>
        <source>no worker could be started</source>
        <translation>le service de comptage n’a pas pu lancer de processus</translation>
    </message>
    <message>
        <source>every worker that tried has failed</source>
        <translation>le service de comptage a échoué plusieurs fois</translation>
    </message>
    <message>
        <source>could not be read</source>
        <translation>n’a pas pu être lu</translation>
    </message>
</context>
<context>
    <name>documents</name>
    <message>
        <source>is not plain text</source>
        <translation>n’est pas du texte brut</translation>
    </message>
    <message>
        <source>is not RTF</source>
        <translation>n’est pas du RTF</translation>
    </message>
    <message>
        <source>is not an RTFD</source>
        <translation>n’est pas un RTFD</translation>
    </message>
    <message>
        <source>is not a web page</source>
        <translation>n’est pas une page web</translation>
    </message>
    <message>
        <source>is not a Word document</source>
        <translation>n’est pas un document Word</translation>
    </message>
    <message>
        <source>is not a PDF file</source>
        <translation>n’est pas un fichier PDF</translation>
    </message>
    <message>
        <source>is not an OpenDocument text</source>
        <translation>n’est pas un texte OpenDocument</translation>
    </message>
    <message>
        <source>is not an EPUB</source>
        <translation>n’est pas un EPUB</translation>
    </message>
    <message>
        <source>is a damaged Word document; open it in a word processor and save it again</source>
        <translation>est un document Word endommagé&#x202f;; ouvrez-le dans un traitement de texte et enregistrez-le de nouveau</translation>
    </message>
    <message>
        <source>is a damaged OpenDocument text; open it in a word processor and save it again</source>
        <translation>est un texte OpenDocument endommagé&#x202f;; ouvrez-le dans un traitement de texte et enregistrez-le de nouveau</translation>
    </message>
    <message>
        <source>is a damaged PDF file; create it again with the program that wrote it</source>
        <translation>est un fichier PDF endommagé&#x202f;; créez-le de nouveau avec le programme d’origine</translation>
    </message>
    <message>
        <source>is a damaged RTFD; save it again</source>
        <translation>est un RTFD endommagé&#x202f;; enregistrez-le de nouveau</translation>
    </message>
    <message>
        <source>is a damaged EPUB; create it again with the program that wrote it</source>
        <translation>est un EPUB endommagé&#x202f;; créez-le de nouveau avec le programme d’origine</translation>
    </message>
    <message>
        <source>is damaged; save it again</source>
        <translation>est endommagé&#x202f;; enregistrez-le de nouveau</translation>
    </message>
    <message>
        <source>takes too much time or memory to read; save it again with a word processor</source>
        <translation>demande trop de temps ou de mémoire pour être lu&#x202f;; enregistrez-le de nouveau avec un traitement de texte</translation>
    </message>
    <message>
        <source>takes too much time or memory to read; print it to a new PDF file first</source>
        <translation>demande trop de temps ou de mémoire pour être lu&#x202f;; imprimez-le d’abord dans un nouveau fichier PDF</translation>
    </message>
    <message>
        <source>takes too much time or memory to read; simplify or divide it</source>
        <translation>demande trop de temps ou de mémoire pour être lu&#x202f;; simplifiez-le ou divisez-le</translation>
    </message>
    <message>
        <source>is encrypted (DRM); count a copy without copy protection</source>
        <translation>est chiffré (DRM)&#x202f;; comptez une copie sans protection</translation>
    </message>
    <message>
        <source>is encrypted; save it without a password</source>
        <translation>est chiffré&#x202f;; enregistrez-le sans mot de passe</translation>
    </message>
    <message>
        <source>is %1, not a text</source>
        <translation>n’est pas un texte&#xa0;: %1</translation>
    </message>
    <message>
        <source>is %1</source>
        <translation>est %1</translation>
    </message>
    <message>
        <source>is in a Word format older than 2007; save it as .docx or RTF</source>
        <translation>est dans un format Word antérieur à 2007&#x202f;; enregistrez-le en .docx ou en RTF</translation>
    </message>
    <message>
        <source>is a Word document in one XML file; save it as .docx</source>
        <translation>est un document Word en un seul fichier XML&#x202f;; enregistrez-le en .docx</translation>
    </message>
    <message>
        <source>is an RTFD without TXT.rtf; save it again</source>
        <translation>est un RTFD sans TXT.rtf&#x202f;; enregistrez-le de nouveau</translation>
    </message>
    <message>
        <source>its TXT.rtf cannot be read: %1</source>
        <translation>son TXT.rtf ne peut pas être lu&#xa0;: %1</translation>
    </message>
    <message>
        <source>is an RTFD whose TXT.rtf is not RTF; save it again</source>
        <translation>est un RTFD dont le TXT.rtf n’est pas du RTF&#x202f;; enregistrez-le de nouveau</translation>
    </message>
    <message>
        <source>has a part in an unsupported format; save it again with a word processor</source>
        <translation>a une partie dans un format non pris en charge&#x202f;; enregistrez-le de nouveau avec un traitement de texte</translation>
    </message>
    <message>
        <source>is a PDF file without pages; print the document again</source>
        <translation>est un fichier PDF sans pages&#x202f;; imprimez de nouveau le document</translation>
    </message>
    <message>
        <source>has no text on its pages; run text recognition on it first</source>
        <translation>n’a pas de texte sur ses pages&#x202f;; passez-le d’abord à la reconnaissance de texte</translation>
    </message>
    <message>
        <source>has unreadable text, as its fonts do not map glyphs to characters; run text recognition on it first</source>
        <translation>a un texte illisible, car ses polices n’associent pas les glyphes à des caractères&#x202f;; passez-le d’abord à la reconnaissance de texte</translation>
    </message>
    <message>
        <source>is too large when unpacked; divide it</source>
        <translation>est trop volumineux une fois décompressé&#x202f;; divisez-le</translation>
    </message>
    <message>
        <source>has more than 1000 elements inside each other; simplify it</source>
        <translation>a plus de 1000 éléments imbriqués&#x202f;; simplifiez-le</translation>
    </message>
    <message>
        <source>is a PDF file, which is not supported here; count it with &apos;quillbay count&apos;</source>
        <translation>est un fichier PDF, non pris en charge ici&#x202f;; comptez-le avec &apos;quillbay count&apos;</translation>
    </message>
    <message>
        <source>needs the program quillbay-document-reader, which is missing or does not start; reinstall Quillbay</source>
        <translation>a besoin du programme quillbay-document-reader, qui est absent ou ne démarre pas&#x202f;; réinstallez Quillbay</translation>
    </message>
    <message>
        <source>cannot be read safely, as the system refuses the filter of system calls; allow seccomp in the kernel or container</source>
        <translation>ne peut pas être lu en sécurité, car le système refuse le filtre des appels système&#x202f;; autorisez seccomp dans le noyau ou le conteneur</translation>
    </message>
    <message>
        <source>was not read, as nobody needs it any more</source>
        <translation>n’a pas été lu, car il n’est plus demandé</translation>
    </message>
</context>
<context>
    <name>documents/reading</name>
    <message>
        <source>a spreadsheet; save it as .csv or PDF</source>
        <translation>une feuille de calcul&#x202f;; enregistrez-la en .csv ou en PDF</translation>
    </message>
    <message>
        <source>a presentation; save it as PDF</source>
        <translation>une présentation&#x202f;; enregistrez-la en PDF</translation>
    </message>
    <message>
        <source>a drawing; save it as PDF</source>
        <translation>un dessin&#x202f;; enregistrez-le en PDF</translation>
    </message>
    <message>
        <source>a .pages document; export it as .docx or RTF</source>
        <translation>un document .pages&#x202f;; exportez-le en .docx ou en RTF</translation>
    </message>
    <message>
        <source>a document of an older office program; save it as .docx or RTF</source>
        <translation>un document d’une ancienne suite bureautique&#x202f;; enregistrez-le en .docx ou en RTF</translation>
    </message>
    <message>
        <source>a binary file</source>
        <translation>fichier binaire</translation>
    </message>
    <message>
        <source>a WordPerfect document; save it as .docx or RTF</source>
        <translation>un document WordPerfect&#x202f;; enregistrez-le en .docx ou en RTF</translation>
    </message>
    <message>
        <source>an e-book in the format FictionBook; convert it to EPUB</source>
        <translation>un livre numérique au format FictionBook&#x202f;; convertissez-le en EPUB</translation>
    </message>
    <message>
        <source>an AbiWord document; save it as .odt or RTF</source>
        <translation>un document AbiWord&#x202f;; enregistrez-le en .odt ou en RTF</translation>
    </message>
    <message>
        <source>a document in the Uniform Office Format; save it as .odt or .docx</source>
        <translation>un document au format Uniform Office Format&#x202f;; enregistrez-le en .odt ou en .docx</translation>
    </message>
    <message>
        <source>en</source>
        <extracomment>The code of your language, as &quot;de&quot;: that of the names of file types.</extracomment>
        <translation>fr</translation>
    </message>
    <message>
        <source>a file of the type %1</source>
        <translation>fichier du type %1</translation>
    </message>
</context>
<context>
    <name>front_end</name>
    <message>
        <source>Quillbay failed to read retrieve text.</source>
        <translation>Quillbay n’a pas pu lire le texte.</translation>
    </message>
    <message>
        <source>Quillbay failed to retrieve file urls.</source>
        <translation>Quillbay n’a pas pu lire les adresses des fichiers.</translation>
    </message>
    <message>
        <source>Quillbay failed to validate file urls.</source>
        <translation>Quillbay ne peut surveiller aucun de ces fichiers.</translation>
    </message>
</context>
<context>
    <name>platform/defaults</name>
    <message>
        <source>it is another program&apos;s database</source>
        <translation>c’est la base de données d’un autre programme</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>ce n’est pas un fichier</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>il est trop volumineux</translation>
    </message>
    <message>
        <source>its file is being replaced</source>
        <translation>le fichier est en cours de remplacement</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translation>il est endommagé</translation>
    </message>
    <message>
        <source>another process keeps it locked</source>
        <translation>un autre processus le garde verrouillé</translation>
    </message>
    <message>
        <source>unable to open database file</source>
        <translation>le fichier ne peut pas être ouvert</translation>
    </message>
    <message>
        <source>attempt to write a readonly database</source>
        <translation>le fichier est en lecture seule</translation>
    </message>
    <message>
        <source>database or disk is full</source>
        <translation>le disque est plein</translation>
    </message>
    <message>
        <source>disk I/O error</source>
        <translation>erreur d’entrée/sortie</translation>
    </message>
    <message>
        <source>database is locked</source>
        <translation>le fichier est verrouillé</translation>
    </message>
    <message>
        <source>file is not a database</source>
        <translation>le fichier n’est pas une base de données</translation>
    </message>
    <message>
        <source>database disk image is malformed</source>
        <translation>le fichier est endommagé</translation>
    </message>
</context>
<context>
    <name>platform/files</name>
    <message>
        <source>no such file</source>
        <translation>n’existe pas</translation>
    </message>
    <message>
        <source>is a folder</source>
        <translation>est un dossier</translation>
    </message>
    <message>
        <source>is a named pipe</source>
        <translation>est un tube nommé</translation>
    </message>
    <message>
        <source>is a device</source>
        <translation>est un périphérique</translation>
    </message>
    <message>
        <source>is a socket</source>
        <translation>est un socket</translation>
    </message>
    <message>
        <source>permission denied</source>
        <translation>accès refusé</translation>
    </message>
    <message>
        <source>is larger than 2 GiB</source>
        <translation>dépasse 2&#xa0;Gio</translation>
    </message>
    <message>
        <source>not enough memory</source>
        <translation>mémoire insuffisante</translation>
    </message>
    <message>
        <source>too many symbolic links</source>
        <translation>trop de liens symboliques</translation>
    </message>
    <message>
        <source>name is too long</source>
        <translation>le nom est trop long</translation>
    </message>
    <message>
        <source>is in use by another program</source>
        <translation>est utilisé par un autre programme</translation>
    </message>
    <message>
        <source>cannot be read (%1)</source>
        <translation>ne peut pas être lu (%1)</translation>
    </message>
</context>
<context>
    <name>platform/pasteboard</name>
    <message>
        <source>there is no display to take the clipboard from; &apos;quillbay count&apos; counts a text from a pipe</source>
        <translation>sans écran, il n’y a pas de presse-papiers&#x202f;; &apos;quillbay count&apos; compte un texte venant d’un tube</translation>
    </message>
    <message>
        <source>there is no display to take the selection from; &apos;quillbay count&apos; counts a text from a pipe</source>
        <translation>sans écran, il n’y a pas de sélection&#x202f;; &apos;quillbay count&apos; compte un texte venant d’un tube</translation>
    </message>
    <message>
        <source>the clipboard is empty</source>
        <translation>le presse-papiers est vide</translation>
    </message>
    <message>
        <source>nothing is selected</source>
        <translation>rien n’est sélectionné</translation>
    </message>
    <message>
        <source>the clipboard holds no text</source>
        <translation>le presse-papiers ne contient pas de texte</translation>
    </message>
    <message>
        <source>the selection holds no text</source>
        <translation>la sélection ne contient pas de texte</translation>
    </message>
    <message>
        <source>the clipboard holds no files</source>
        <translation>le presse-papiers ne contient pas de fichiers</translation>
    </message>
    <message>
        <source>the selection holds no files</source>
        <translation>la sélection ne contient pas de fichiers</translation>
    </message>
    <message>
        <source>the application that has the clipboard does not hand it over</source>
        <translation>l’application qui détient le presse-papiers ne le transmet pas</translation>
    </message>
    <message>
        <source>the application that has the selection does not hand it over</source>
        <translation>l’application qui détient la sélection ne la transmet pas</translation>
    </message>
    <message>
        <source>the application that has the clipboard does not answer</source>
        <translation>l’application qui détient le presse-papiers ne répond pas</translation>
    </message>
    <message>
        <source>the application that has the selection does not answer</source>
        <translation>l’application qui détient la sélection ne répond pas</translation>
    </message>
    <message>
        <source>the clipboard is too large</source>
        <translation>le presse-papiers est trop volumineux</translation>
    </message>
    <message>
        <source>the selection is too large</source>
        <translation>la sélection est trop volumineuse</translation>
    </message>
    <message>
        <source>not enough memory for the clipboard</source>
        <translation>mémoire insuffisante pour le presse-papiers</translation>
    </message>
    <message>
        <source>not enough memory for the selection</source>
        <translation>mémoire insuffisante pour la sélection</translation>
    </message>
    <message>
        <source>this desktop shows the clipboard to no other program; copy the text and run &apos;quillbay text&apos; in a terminal, or open its file with &apos;quillbay text FILE&apos;</source>
        <translation>ce bureau ne montre le presse-papiers à aucun autre programme&#x202f;; copiez le texte et lancez &apos;quillbay text&apos; dans un terminal, ou ouvrez son fichier avec &apos;quillbay text FILE&apos;</translation>
    </message>
    <message>
        <source>this desktop shows the selection to no other program; copy the text and run &apos;quillbay text&apos; in a terminal, or open its file with &apos;quillbay text FILE&apos;</source>
        <translation>ce bureau ne montre la sélection à aucun autre programme&#x202f;; copiez le texte et lancez &apos;quillbay text&apos; dans un terminal, ou ouvrez son fichier avec &apos;quillbay text FILE&apos;</translation>
    </message>
</context>
<context>
    <name>platform/services</name>
    <message>
        <source>there is no session bus</source>
        <translation>il n’y a pas de bus de session</translation>
    </message>
    <message>
        <source>the service provider does not answer: %1</source>
        <translation>le service de Quillbay ne répond pas&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>platform/system</name>
    <message>
        <source>%1 cannot be started: %2</source>
        <translation>%1 ne peut pas être lancé&#xa0;: %2</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>Opération non permise</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>Fichier ou dossier inexistant</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>Erreur d’entrée/sortie</translation>
    </message>
    <message>
        <source>No such device or address</source>
        <translation>Périphérique ou adresse inexistant</translation>
    </message>
    <message>
        <source>Cannot allocate memory</source>
        <translation>Mémoire insuffisante</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Accès refusé</translation>
    </message>
    <message>
        <source>Device or resource busy</source>
        <translation>Périphérique ou ressource occupé</translation>
    </message>
    <message>
        <source>File exists</source>
        <translation>Le fichier existe déjà</translation>
    </message>
    <message>
        <source>No such device</source>
        <translation>Périphérique inexistant</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>N’est pas un dossier</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>Est un dossier</translation>
    </message>
    <message>
        <source>Invalid argument</source>
        <translation>Argument invalide</translation>
    </message>
    <message>
        <source>Too many open files in system</source>
        <translation>Trop de fichiers ouverts dans le système</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>Trop de fichiers ouverts</translation>
    </message>
    <message>
        <source>File too large</source>
        <translation>Fichier trop volumineux</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>Plus d’espace sur le périphérique</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>Système de fichiers en lecture seule</translation>
    </message>
    <message>
        <source>Broken pipe</source>
        <translation>Tube rompu</translation>
    </message>
    <message>
        <source>File name too long</source>
        <translation>Nom de fichier trop long</translation>
    </message>
    <message>
        <source>Too many levels of symbolic links</source>
        <translation>Trop de liens symboliques</translation>
    </message>
    <message>
        <source>Disk quota exceeded</source>
        <translation>Quota de disque dépassé</translation>
    </message>
    <message>
        <source>Stale file handle</source>
        <translation>Accès au fichier périmé</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>Délai de connexion dépassé</translation>
    </message>
    <message>
        <source>Connection refused</source>
        <translation>Connexion refusée</translation>
    </message>
    <message>
        <source>Transport endpoint is not connected</source>
        <translation>Non connecté</translation>
    </message>
    <message>
        <source>Host is down</source>
        <translation>L’hôte est arrêté</translation>
    </message>
    <message>
        <source>No route to host</source>
        <translation>Aucun chemin vers l’hôte</translation>
    </message>
    <message>
        <source>Exec format error</source>
        <translation>Format de programme incorrect</translation>
    </message>
    <message>
        <source>Bad file descriptor</source>
        <translation>Descripteur de fichier incorrect</translation>
    </message>
    <message>
        <source>Resource temporarily unavailable</source>
        <translation>Ressource temporairement indisponible</translation>
    </message>
</context>
<context>
    <name>presentation</name>
    <message>
        <source>not enough memory to send it to the counting service</source>
        <translation>mémoire insuffisante pour l’envoyer au service de comptage</translation>
    </message>
    <message>
        <source>there is no session bus, over which the counting service is reached; run again without --service</source>
        <translation>il n’y a pas de bus de session, par lequel on atteint le service de comptage&#x202f;; relancez sans --service</translation>
    </message>
    <message>
        <source>the counting service does not answer; run again without --service, or &apos;quillbay doctor&apos; to find out why</source>
        <translation>le service de comptage ne répond pas&#x202f;; relancez sans --service, ou &apos;quillbay doctor&apos; pour en trouver la raison</translation>
    </message>
</context>
<context>
    <name>speech</name>
    <message>
        <source> words</source>
        <comment>behind a number in letters, which is spoken</comment>
        <translation> mots</translation>
    </message>
</context>
<context>
    <name>watching/windows</name>
    <message>
        <source>Failed to load text.</source>
        <translation>Échec du chargement du texte.</translation>
    </message>
    <message>
        <source>Quillbay was unable to update the stats of the text file currently being watched. This usually means the file was either renamed or deleted. You can choose another text file to watch or cancel.</source>
        <translation>Quillbay n’a pas pu mettre à jour les chiffres du fichier surveillé. En général, le fichier a été renommé ou supprimé. Vous pouvez choisir un autre fichier à surveiller ou annuler.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Choose another file.</source>
        <translation>Choisir un autre fichier…</translation>
    </message>
</context>
<context>
    <name>writing_progress</name>
    <message>
        <source>Goal reached</source>
        <translation>Objectif atteint</translation>
    </message>
    <message>
        <source>Limit passed</source>
        <translation>Limite dépassée</translation>
    </message>
    <message>
        <source>%1 word</source>
        <translation>%1 mot</translation>
    </message>
    <message>
        <source>%1 words</source>
        <translation>%1 mots</translation>
    </message>
    <message>
        <source>%1 character</source>
        <translation>%1 caractère</translation>
    </message>
    <message>
        <source>%1 characters</source>
        <translation>%1 caractères</translation>
    </message>
    <message>
        <source>%1 character with white space</source>
        <translation>%1 caractère, blancs compris</translation>
    </message>
    <message>
        <source>%1 characters with white space</source>
        <translation>%1 caractères, blancs compris</translation>
    </message>
    <message>
        <source>%1 line</source>
        <translation>%1 ligne</translation>
    </message>
    <message>
        <source>%1 lines</source>
        <translation>%1 lignes</translation>
    </message>
    <message>
        <source>%1 a day</source>
        <translation>%1 par jour</translation>
    </message>
    <message>
        <source>%1 until %2</source>
        <translation>%1 d’ici au %2</translation>
    </message>
    <message>
        <source>At most %1</source>
        <translation>Au plus %1</translation>
    </message>
    <message>
        <source>Reached</source>
        <translation>Atteint</translation>
    </message>
    <message>
        <source>%1 remaining today</source>
        <translation>encore %1 aujourd’hui</translation>
    </message>
    <message>
        <source>%1 remaining: it was due on %2</source>
        <translation>encore %1, l’échéance était le %2</translation>
    </message>
    <message>
        <source>%1 remaining: %2 a day until %3</source>
        <translation>encore %1&#xa0;: %2 par jour d’ici au %3</translation>
    </message>
    <message>
        <source>%1 remaining</source>
        <translation>encore %1</translation>
    </message>
    <message>
        <source>%1: has more than %2.</source>
        <translation>%1&#xa0;: dépasse %2.</translation>
    </message>
    <message>
        <source>%1: has reached its goal of %2.</source>
        <translation>%1&#xa0;: a atteint son objectif de %2.</translation>
    </message>
</context>
</TS>
