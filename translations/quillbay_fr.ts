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
        <translation>sans écran, il n’y a pas de presse-papiers&#x202f;; &apos;quillbay count&apos; compte un texte d’un tube</translation>
    </message>
    <message>
        <source>there is no display to take the selection from; &apos;quillbay count&apos; counts a text from a pipe</source>
        <translation>sans écran, il n’y a pas de sélection&#x202f;; &apos;quillbay count&apos; compte un texte d’un tube</translation>
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
</TS>
