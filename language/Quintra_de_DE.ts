<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="it_IT">
<context>
    <name>Cartella</name>
    <message>
        <source>Pag %1 blocco %2 = Pag %3 blocco %4</source>
        <translation>Seite %1, Karte %2 = Seite %3, Karte %4</translation>
    </message>
    <message>
        <source>Blocchi verificati: %1
Confronti tra blocchi: %2
Celle verificate: %3
Blocchi uguali: %4 (%5%)</source>
        <translation>Geprüfte Karten: %1
Vergleiche zwischen Karten: %2
Geprüfte Felder: %3
Gleiche Karten: %4 (%5&#xa0;%)</translation>
    </message>
    <message>
        <source>La cartella e&apos; vuota od ha solo una pagina.
I blocchi di una pagina sono sempre diversi.</source>
        <translation>Der Kartensatz ist leer oder hat nur eine Seite.
Die Karten einer Seite sind immer verschieden.</translation>
    </message>
    <message>
        <source>Confronto pagina %1 di %2</source>
        <translation>Seite %1 von %2 wird verglichen</translation>
    </message>
    <message>
        <source>numero</source>
        <translation>Zahl</translation>
    </message>
    <message>
        <source>testo</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>immagine</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>vuota</source>
        <translation>leer</translation>
    </message>
</context>
<context>
    <name>CasellaAccessibile</name>
    <message>
        <source>riga %1, colonna %2, %3, %4</source>
        <translation>Reihe %1, Spalte %2, %3, %4</translation>
    </message>
    <message>
        <source>spuntata</source>
        <translation>angekreuzt</translation>
    </message>
    <message>
        <source>non spuntata</source>
        <translation>nicht angekreuzt</translation>
    </message>
</context>
<context>
    <name>CaselleDelegate</name>
    <message>
        <source>%1, chiamato</source>
        <translation>%1, gezogen</translation>
    </message>
    <message>
        <source>%1, non chiamato</source>
        <translation>%1, nicht gezogen</translation>
    </message>
</context>
<context>
    <name>CreateOutputFile</name>
    <message>
        <source>Formato file sconosciuto!</source>
        <translation>Unbekanntes Dateiformat!</translation>
    </message>
    <message>
        <source>Formato %1 non disponibile. Creazione annullata.</source>
        <translation>Format %1 nicht verfügbar. Erstellung abgebrochen.</translation>
    </message>
    <message>
        <source>Impossibile scrivere sul file!</source>
        <translation>Die Datei kann nicht geschrieben werden!</translation>
    </message>
    <message>
        <source>PDF: Stampa pagina %1 di %2 (%3%) in corso...</source>
        <translation>PDF: Seite %1 von %2 wird gedruckt (%3&#xa0;%)...</translation>
    </message>
    <message>
        <source>Impossibile continuare a scrivere sul file!</source>
        <translation>Die Datei kann nicht weiter geschrieben werden!</translation>
    </message>
    <message>
        <source>Stampa PDF completata!</source>
        <translation>PDF-Druck abgeschlossen!</translation>
    </message>
    <message>
        <source>File creato con successo!

Nome: %1
Percorso: %2

Pagine: %3
Dimensione: %4 Bytes (%5 MB)
----------------------------------------

Dimensioni pagina: %6</source>
        <translation>Datei erfolgreich erstellt!

Name: %1
Pfad: %2

Seiten: %3
Größe: %4 Bytes (%5 MB)
----------------------------------------

Seitengröße: %6</translation>
    </message>
</context>
<context>
    <name>Diario</name>
    <message>
        <source>La serata è già aperta in un&apos;altra finestra.</source>
        <translation>Der Bingoabend ist schon in einem anderen Fenster geöffnet.</translation>
    </message>
    <message>
        <source>Non è un file.</source>
        <translation>Es ist keine Datei.</translation>
    </message>
</context>
<context>
    <name>EditPersonale</name>
    <message>
        <source>Pagina</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>La pagina mostrata</source>
        <translation>Angezeigte Seite</translation>
    </message>
    <message>
        <source>di</source>
        <translation>von</translation>
    </message>
    <message>
        <source>Il numero di pagine</source>
        <translation>Anzahl der Seiten</translation>
    </message>
    <message>
        <source>I numeri di questa pagina sono estratti colonna per colonna, ciascuna con il proprio intervallo</source>
        <translation>Die Zahlen dieser Seite werden spaltenweise gezogen, jede Spalte aus ihrem eigenen Bereich</translation>
    </message>
    <message>
        <source>Ordina numeri sulle colonne</source>
        <translation>Zahlen spaltenweise ziehen</translation>
    </message>
    <message>
        <source>Selezione</source>
        <translation>Auswahl</translation>
    </message>
    <message>
        <source>La selezione comprende tutte le celle della pagina</source>
        <translation>Die Auswahl umfasst alle Felder der Seite</translation>
    </message>
    <message>
        <source>Tutte</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Riga</source>
        <translation>Reihe</translation>
    </message>
    <message>
        <source>da</source>
        <translation>von</translation>
    </message>
    <message>
        <source>Prima riga della selezione</source>
        <translation>Erste Reihe der Auswahl</translation>
    </message>
    <message>
        <source>a</source>
        <translation>bis</translation>
    </message>
    <message>
        <source>Ultima riga della selezione</source>
        <translation>Letzte Reihe der Auswahl</translation>
    </message>
    <message>
        <source>Colonna</source>
        <translation>Spalte</translation>
    </message>
    <message>
        <source>Prima colonna della selezione</source>
        <translation>Erste Spalte der Auswahl</translation>
    </message>
    <message>
        <source>Ultima colonna della selezione</source>
        <translation>Letzte Spalte der Auswahl</translation>
    </message>
    <message>
        <source>Spunta le celle della selezione</source>
        <translation>Felder der Auswahl ankreuzen</translation>
    </message>
    <message>
        <source>Riempi</source>
        <translation>Füllen</translation>
    </message>
    <message>
        <source>Toglie la spunta dalle celle della selezione</source>
        <translation>Kreuze der ausgewählten Felder entfernen</translation>
    </message>
    <message>
        <source>Svuota</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Inverte la spunta delle celle della selezione</source>
        <translation>Angekreuzte und nicht angekreuzte Felder der Auswahl vertauschen</translation>
    </message>
    <message>
        <source>Inverti</source>
        <translation>Umkehren</translation>
    </message>
    <message>
        <source>Tipo delle celle</source>
        <translation>Feldtyp</translation>
    </message>
    <message>
        <source>Celle con un numero</source>
        <translation>Felder mit einer Zahl</translation>
    </message>
    <message>
        <source>Numero</source>
        <translation>Zahl</translation>
    </message>
    <message>
        <source>Celle con un testo</source>
        <translation>Felder mit einem Text</translation>
    </message>
    <message>
        <source>Testo</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Celle con un&apos;immagine</source>
        <translation>Felder mit einem Bild</translation>
    </message>
    <message>
        <source>Immagine</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>&lt;p&gt;Imposta il tipo delle celle selezionate sopra!&lt;/p&gt;&lt;p&gt;Per cambiare le singole celle usare il tasto destro del mouse su di esse.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Den Typ der oben ausgewählten Felder festlegen!&lt;/p&gt;&lt;p&gt;Einzelne Felder werden mit der rechten Maustaste geändert.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Imposta selezionate</source>
        <translation>Auf Auswahl anwenden</translation>
    </message>
    <message>
        <source>Schema corrente</source>
        <translation>Aktuelle Belegung</translation>
    </message>
    <message>
        <source>da pag.</source>
        <translation>von S.</translation>
    </message>
    <message>
        <source>Prima pagina su cui copiare lo schema</source>
        <translation>Erste Seite, auf die die Belegung kopiert wird</translation>
    </message>
    <message>
        <source>Ultima pagina su cui copiare lo schema</source>
        <translation>Letzte Seite, auf die die Belegung kopiert wird</translation>
    </message>
    <message>
        <source>Copia lo schema su tutte le pagine</source>
        <translation>Belegung auf alle Seiten kopieren</translation>
    </message>
    <message>
        <source>tutte</source>
        <translation>alle</translation>
    </message>
    <message>
        <source>Copia lo schema della pagina mostrata sulle pagine indicate</source>
        <translation>Belegung der angezeigten Seite auf die angegebenen Seiten kopieren</translation>
    </message>
    <message>
        <source>Copia</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Crea le pagine e le aggiunge alla cartella</source>
        <translation>Seiten erstellen und zum Kartensatz hinzufügen</translation>
    </message>
    <message>
        <source>Crea pagine</source>
        <translation>Seiten erstellen</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Nuovo</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Per iniziare una nuova mappatura chiudere questa finestra e riaprirla dalla finestra principale</source>
        <translation>Für eine neue Belegung dieses Fenster schließen und im Hauptfenster erneut öffnen</translation>
    </message>
    <message>
        <source>Apri</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Apre uno schema di pagine da file</source>
        <translation>Seitenbelegung aus einer Datei öffnen</translation>
    </message>
    <message>
        <source>Salva</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>&lt;p&gt;Salva lo schema delle pagine su file. Una pagina con più di 255 celle non può essere riletta per intero e l&apos;opzione &quot;Ordina numeri sulle colonne&quot; non viene salvata.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Seitenbelegung in einer Datei speichern. Eine Seite mit mehr als 255 Feldern kann nicht vollständig wieder eingelesen werden, und die Option &quot;Zahlen spaltenweise ziehen&quot; wird nicht gespeichert.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Esci</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Chiude la mappatura manuale</source>
        <translation>Manuelle Belegung schließen</translation>
    </message>
    <message>
        <source>Mappatura manuale</source>
        <translation>Manuelle Belegung</translation>
    </message>
    <message>
        <source>Non vi sono pagine da creare!</source>
        <translation>Es gibt keine Seiten zu erstellen!</translation>
    </message>
    <message>
        <source>MAPPATURA MANUALE</source>
        <translation>MANUELLE BELEGUNG</translation>
    </message>
    <message>
        <source>Tipo cambiato in: %1</source>
        <translation>Typ geändert in: %1</translation>
    </message>
    <message>
        <source>I numeri da generare (%1) sono maggiori di quelli disponibili (%2).</source>
        <translation>Es sind mehr Zahlen zu erzeugen (%1) als verfügbar (%2).</translation>
    </message>
    <message>
        <source>Impostazioni corrette</source>
        <translation>Einstellungen in Ordnung</translation>
    </message>
    <message>
        <source>Le pagine selezionate verranno sovrascritte con lo schema corrente. Proseguire?</source>
        <translation>Die gewählten Seiten werden mit der aktuellen Belegung überschrieben. Fortfahren?</translation>
    </message>
    <message>
        <source>Copia schema effettuata!</source>
        <translation>Belegung kopiert!</translation>
    </message>
    <message>
        <source>Pagine create e aggiunte alla cartella principale!</source>
        <translation>Seiten erstellt und zum Kartensatz hinzugefügt!</translation>
    </message>
    <message>
        <source>Errore durante la creazione delle pagine!

%1</source>
        <translation>Fehler beim Erstellen der Seiten!

%1</translation>
    </message>
    <message>
        <source>Sei sicuro di voler chiudere?</source>
        <translation>Möchten Sie das Fenster wirklich schließen?</translation>
    </message>
    <message>
        <source>Salva le cartelle su file</source>
        <translation>Belegung in Datei speichern</translation>
    </message>
    <message>
        <source>Creazione file annullata!</source>
        <translation>Erstellen der Datei abgebrochen!</translation>
    </message>
    <message>
        <source>Pagina %1 di %2 salvata</source>
        <translation>Seite %1 von %2 gespeichert</translation>
    </message>
    <message>
        <source>File creato con successo!

Nome: %1
Estensione: %2
Percorso: %3

Pagine: %4
Dimensione: %5 Bytes (%6 MB)
</source>
        <translation>Datei erfolgreich erstellt!

Name: %1
Erweiterung: %2
Pfad: %3

Seiten: %4
Größe: %5 Bytes (%6 MB)
</translation>
    </message>
    <message>
        <source>Aprendo un nuovo progetto tutto il lavoro in corso di modifica sarà perso. Proseguire?</source>
        <translation>Beim Öffnen einer anderen Belegung geht die gesamte laufende Arbeit verloren. Fortfahren?</translation>
    </message>
    <message>
        <source>Apre un file di cartelle</source>
        <translation>Belegungsdatei öffnen</translation>
    </message>
    <message>
        <source>Apertura file annullata!</source>
        <translation>Öffnen der Datei abgebrochen!</translation>
    </message>
    <message>
        <source>Sto leggendo la pagina %1</source>
        <translation>Seite %1 wird gelesen</translation>
    </message>
    <message>
        <source>Apertura completata!</source>
        <translation>Öffnen abgeschlossen!</translation>
    </message>
    <message>
        <source>Sto caricando la pagina %1 di %2</source>
        <translation>Seite %1 von %2 wird geladen</translation>
    </message>
    <message>
        <source>Salva lo schema delle pagine su file</source>
        <translation>Seitenbelegung in einer Datei speichern</translation>
    </message>
    <message>
        <source>Errore nel salvataggio del file:
%1

%2</source>
        <translation>Fehler beim Speichern der Datei:
%1

%2</translation>
    </message>
    <message>
        <source>Non è un file di cartelle:
%1</source>
        <translation>Das ist keine Belegungsdatei:
%1</translation>
    </message>
    <message>
        <source>Errore nella lettura del file:
%1

%2</source>
        <translation>Fehler beim Lesen der Datei:
%1

%2</translation>
    </message>
    <message>
        <source>Nessuna riga del file descrive una pagina.</source>
        <translation>Keine Zeile der Datei beschreibt eine Seite.</translation>
    </message>
    <message>
        <source>Non vi sono pagine.
%1</source>
        <translation>Es gibt keine Seiten.
%1</translation>
    </message>
    <message>
        <source>Le pagine con troppe celle non saranno rilette per intero dal file.
Pagine: %1</source>
        <translation>Seiten mit zu vielen Feldern können nicht vollständig wieder eingelesen werden.
Seiten: %1</translation>
    </message>
    <message>
        <source>&lt;p&gt;I numeri spuntati e quelli disponibili. Cambiando pagina il conteggio prosegue da quello di prima, finché non si cambia un tipo o si copia uno schema.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Die angekreuzten und die verfügbaren Zahlen. Auf einer anderen Seite wird weitergezählt, bis ein Typ geändert oder eine Belegung kopiert wird.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;Un clic o la barra spaziatrice mette o toglie la spunta; trascinando il mouse con il tasto sinistro premuto si spuntano le celle attraversate.&lt;/p&gt;&lt;p&gt;Il tasto destro del mouse o il tasto T passa al tipo successivo, tranne che nelle pagine lette da un file.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Ein Klick oder die Leertaste kreuzt ein Feld an oder entfernt das Kreuz; beim Ziehen mit der linken Maustaste werden die überstrichenen Felder angekreuzt.&lt;/p&gt;&lt;p&gt;Die rechte Maustaste oder die Taste T wechselt zum nächsten Typ, außer auf Seiten, die aus einer Datei gelesen wurden.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Numeri: %1 di %2</source>
        <translation>Zahlen: %1 von %2</translation>
    </message>
    <message>
        <source>Le pagine totali richieste (%1)
eccedono il massimo consentito (%2).</source>
        <translation>Die gewünschte Gesamtzahl der Seiten (%1)
übersteigt das erlaubte Maximum (%2).</translation>
    </message>
    <message>
        <source>Aiuto</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Manuale</source>
        <translation>Handbuch</translation>
    </message>
    <message>
        <source>Come si usa il programma, passo per passo</source>
        <translation>Wie man das Programm benutzt, Schritt für Schritt</translation>
    </message>
    <message>
        <source>Copia schema annullata!</source>
        <translation>Kopieren der Belegung abgebrochen!</translation>
    </message>
</context>
<context>
    <name>ElencoSchede</name>
    <message>
        <source>%1: chiamata %2</source>
        <translation>%1: Ziehung %2</translation>
    </message>
    <message>
        <source>%1: manca il %2</source>
        <translation>%1: es fehlt die %2</translation>
    </message>
</context>
<context>
    <name>FormatSelection</name>
    <message>
        <source>Dialog</source>
        <translation>Dialog</translation>
    </message>
    <message>
        <source>Seleziona la lingua:</source>
        <translation>Sprache wählen:</translation>
    </message>
    <message>
        <source>&lt;p&gt;Lingua del programma fino alla chiusura e dei commenti nelle impostazioni; ai prossimi avvii vale la lingua del sistema&lt;/p&gt;</source>
        <translation>&lt;p&gt;Sprache des Programms bis zum Beenden und der Kommentare in den Einstellungen; spätere Starts verwenden die Systemsprache&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Impostazioni di default: </source>
        <translation>Standardeinstellungen: </translation>
    </message>
    <message>
        <source>Impostazioni di default</source>
        <translation>Standardeinstellungen</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Generatore di cartelle per la Quintra.</source>
        <translation>Kartengenerator für Quintra.</translation>
    </message>
    <message>
        <source>Numeri - Minimo</source>
        <translation>Zahlen - Minimum</translation>
    </message>
    <message>
        <source>Numeri - Massimo</source>
        <translation>Zahlen - Maximum</translation>
    </message>
    <message>
        <source>Classica - Numero blocchi</source>
        <translation>Klassisch - Karten pro Seite</translation>
    </message>
    <message>
        <source>Classica - Numero righe per blocco</source>
        <translation>Klassisch - Reihen pro Karte</translation>
    </message>
    <message>
        <source>Classica - Numero estrazioni per riga</source>
        <translation>Klassisch - Belegte Felder pro Reihe</translation>
    </message>
    <message>
        <source>Classica - Numero colonne</source>
        <translation>Klassisch - Spalten</translation>
    </message>
    <message>
        <source>Classica - Numero jolly per riga</source>
        <translation>Klassisch - Bilder (Joker) pro Reihe</translation>
    </message>
    <message>
        <source>Testo di base nelle celle</source>
        <translation>Standardtext in den Feldern</translation>
    </message>
    <message>
        <source>Immagine di base nelle celle</source>
        <translation>Standardbild in den Feldern</translation>
    </message>
    <message>
        <source>Directory di base dove salvare</source>
        <translation>Standardordner zum Speichern</translation>
    </message>
    <message>
        <source>Lingua di default</source>
        <translation>Standardsprache</translation>
    </message>
    <message>
        <source>Configurazione</source>
        <translation>Konfiguration</translation>
    </message>
    <message>
        <source>Impossibile commentare il file, formato errato!</source>
        <translation>Kommentare können nicht in die Datei geschrieben werden: falsches Format!</translation>
    </message>
    <message>
        <source>Continua con queste impostazioni</source>
        <translation>Mit diesen Einstellungen fortfahren</translation>
    </message>
    <message>
        <source>Quintra</source>
        <translation>Quintra</translation>
    </message>
</context>
<context>
    <name>GeneraCartellaPersonale</name>
    <message>
        <source>Nessuna pagina da generare!</source>
        <translation>Es gibt keine Seiten zu erzeugen!</translation>
    </message>
    <message>
        <source>Nessun numero generato!</source>
        <translation>Keine Zahlen erzeugt!</translation>
    </message>
    <message>
        <source>Genera per colonne:
Impossibile generare %1 numeri sulla colonna n^ %2
La colonna vorrebbe %3 numeri diversi tra %4 e %5
ma cio&apos; risulta impossibile in quanto il range e&apos; composto da %6 numeri.</source>
        <translation>Spaltenweises Ziehen der Zahlen:
Zu viele Zahlen (%1) für Spalte Nr. %2
Die Spalte braucht so viele verschiedene Zahlen (%3) zwischen %4 und %5,
aber das ist unmöglich, da der Bereich weniger umfasst (%6).</translation>
    </message>
    <message>
        <source>Generazione numeri:
Errore durante l&apos;aggiunta della pagina %i.</source>
        <translation>Erzeugung der Zahlen:
Fehler beim Hinzufügen der Seite %i.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>MainWindow</source>
        <translation>MainWindow</translation>
    </message>
    <message>
        <source>Cartella</source>
        <translation>Kartensatz</translation>
    </message>
    <message>
        <source>Numero di pagine</source>
        <translation>Anzahl der Seiten</translation>
    </message>
    <message>
        <source>Numero totale di pagine (cartelle)</source>
        <translation>Gesamtzahl der Seiten (Kartenbögen)</translation>
    </message>
    <message>
        <source>Numero di blocchi per pagina</source>
        <translation>Karten pro Seite</translation>
    </message>
    <message>
        <source>Numero di righe per blocco</source>
        <translation>Reihen pro Karte</translation>
    </message>
    <message>
        <source>Numero di colonne</source>
        <translation>Spalten</translation>
    </message>
    <message>
        <source>Numero di celle (colonne) per riga</source>
        <translation>Anzahl der Felder (Spalten) pro Reihe</translation>
    </message>
    <message>
        <source>Celle di ogni riga</source>
        <translation>Felder in jeder Reihe</translation>
    </message>
    <message>
        <source>Numero di estrazioni per riga</source>
        <translation>Belegte Felder pro Reihe</translation>
    </message>
    <message>
        <source>Numero di celle da riempire (numeri,immagini,scritte) in ogni riga</source>
        <translation>Anzahl der zu belegenden Felder (Zahlen, Bilder, Texte) in jeder Reihe</translation>
    </message>
    <message>
        <source>Numero di immagini per riga</source>
        <translation>Bilder pro Reihe</translation>
    </message>
    <message>
        <source>Inserisci delle immagini al posto dei numeri nelle celle</source>
        <translation>Bilder (Joker) statt Zahlen in Felder setzen</translation>
    </message>
    <message>
        <source>Numero di scritte per riga</source>
        <translation>Texte pro Reihe</translation>
    </message>
    <message>
        <source>Inserisci del testo al posto dei numeri nelle celle</source>
        <translation>Texte statt Zahlen in Felder setzen</translation>
    </message>
    <message>
        <source>Numeri da estrarre</source>
        <translation>Zu ziehende Zahlen</translation>
    </message>
    <message>
        <source>Numero minimo da estrarre</source>
        <translation>Kleinste Zahl</translation>
    </message>
    <message>
        <source>Numero massimo da estrarre</source>
        <translation>Größte Zahl</translation>
    </message>
    <message>
        <source>Disegna a mano quali celle riempire, pagina per pagina</source>
        <translation>Von Hand festlegen, welche Felder belegt werden, Seite für Seite</translation>
    </message>
    <message>
        <source>Mappatura manuale</source>
        <translation>Manuelle Belegung</translation>
    </message>
    <message>
        <source>Crea le pagine richieste e le aggiunge alla cartella</source>
        <translation>Gewünschte Seiten erstellen und zum Kartensatz hinzufügen</translation>
    </message>
    <message>
        <source>Aggiungi pagine</source>
        <translation>Seiten hinzufügen</translation>
    </message>
    <message>
        <source>Stampa la cartella su file</source>
        <translation>Kartensatz in eine Datei drucken</translation>
    </message>
    <message>
        <source>STAMPA</source>
        <translation>DRUCKEN</translation>
    </message>
    <message>
        <source>Pagina</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>Pagina visualizzata</source>
        <translation>Angezeigte Seite</translation>
    </message>
    <message>
        <source>di</source>
        <translation>von</translation>
    </message>
    <message>
        <source>Numero di pagine della cartella</source>
        <translation>Anzahl der Seiten des Kartensatzes</translation>
    </message>
    <message>
        <source>Elimina la pagina visualizzata</source>
        <translation>Angezeigte Seite löschen</translation>
    </message>
    <message>
        <source>Elimina</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Formato</source>
        <translation>Papierformat</translation>
    </message>
    <message>
        <source>Formato della carta su cui stampare</source>
        <translation>Format des Papiers, auf dem gedruckt wird</translation>
    </message>
    <message>
        <source>Spazio tra i blocchi (mm)</source>
        <translation>Kartenabstand (mm)</translation>
    </message>
    <message>
        <source>Spazio tra i blocchi della pagina, in millimetri</source>
        <translation>Abstand zwischen den Karten der Seite in Millimetern</translation>
    </message>
    <message>
        <source>I comandi di pagina e di blocco agiscono su tutte le pagine</source>
        <translation>Seiten- und Kartenbefehle wirken auf alle Seiten</translation>
    </message>
    <message>
        <source>Applica a tutte</source>
        <translation>Auf alle anwenden</translation>
    </message>
    <message>
        <source>Imposta lo spazio tra i blocchi</source>
        <translation>Abstand zwischen den Karten festlegen</translation>
    </message>
    <message>
        <source>Applica</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>Colori</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>Colore di sfondo della pagina</source>
        <translation>Hintergrundfarbe der Seite</translation>
    </message>
    <message>
        <source>Colora sfondo</source>
        <translation>Hintergrundfarbe</translation>
    </message>
    <message>
        <source>Blocco</source>
        <translation>Karte</translation>
    </message>
    <message>
        <source>Blocco selezionato</source>
        <translation>Ausgewählte Karte</translation>
    </message>
    <message>
        <source>Blocchi della pagina</source>
        <translation>Karten der Seite</translation>
    </message>
    <message>
        <source>Spessore linea esterna</source>
        <translation>Stärke der Außenlinie</translation>
    </message>
    <message>
        <source>Spessore della linea esterna del blocco (non ha ancora effetto)</source>
        <translation>Stärke der Außenlinie der Karte (noch ohne Wirkung)</translation>
    </message>
    <message>
        <source>Spessore linea interna</source>
        <translation>Stärke der Innenlinie</translation>
    </message>
    <message>
        <source>Spessore delle linee interne del blocco (non ha ancora effetto)</source>
        <translation>Stärke der Innenlinien der Karte (noch ohne Wirkung)</translation>
    </message>
    <message>
        <source>I comandi di blocco agiscono su tutti i blocchi</source>
        <translation>Kartenbefehle wirken auf alle Karten</translation>
    </message>
    <message>
        <source>Applica a tutti</source>
        <translation>Auf alle anwenden</translation>
    </message>
    <message>
        <source>Applica le impostazioni del blocco (non ha ancora effetto)</source>
        <translation>Karteneinstellungen anwenden (noch ohne Wirkung)</translation>
    </message>
    <message>
        <source>Colore di sfondo delle celle del blocco</source>
        <translation>Hintergrundfarbe der Felder der Karte</translation>
    </message>
    <message>
        <source>Colore della linea esterna del blocco (non ha ancora effetto)</source>
        <translation>Farbe der Außenlinie der Karte (noch ohne Wirkung)</translation>
    </message>
    <message>
        <source>Colore delle linee interne del blocco (non ha ancora effetto)</source>
        <translation>Farbe der Innenlinien der Karte (noch ohne Wirkung)</translation>
    </message>
    <message>
        <source>Cella</source>
        <translation>Feld</translation>
    </message>
    <message>
        <source>Riga</source>
        <translation>Reihe</translation>
    </message>
    <message>
        <source>Riga della cella nel suo blocco</source>
        <translation>Reihe des Feldes in seiner Karte</translation>
    </message>
    <message>
        <source>Colonna</source>
        <translation>Spalte</translation>
    </message>
    <message>
        <source>Colonna della cella</source>
        <translation>Spalte des Feldes</translation>
    </message>
    <message>
        <source>Tipo della cella</source>
        <translation>Typ des Feldes</translation>
    </message>
    <message>
        <source>Carattere delle celle selezionate</source>
        <translation>Schriftart der ausgewählten Felder</translation>
    </message>
    <message>
        <source>Carattere...</source>
        <translation>Schriftart...</translation>
    </message>
    <message>
        <source>Carattere della cella</source>
        <translation>Schriftart des Feldes</translation>
    </message>
    <message>
        <source>Sceglie l&apos;immagine della cella selezionata</source>
        <translation>Bild des ausgewählten Feldes wählen</translation>
    </message>
    <message>
        <source>I comandi di cella agiscono sulle stesse celle di tutte le pagine</source>
        <translation>Feldbefehle wirken auf dieselben Felder aller Seiten</translation>
    </message>
    <message>
        <source>Applica le impostazioni della cella (non ha ancora effetto)</source>
        <translation>Feldeinstellungen anwenden (noch ohne Wirkung)</translation>
    </message>
    <message>
        <source>Colore del testo delle celle selezionate</source>
        <translation>Textfarbe der ausgewählten Felder</translation>
    </message>
    <message>
        <source>Colora testo</source>
        <translation>Textfarbe</translation>
    </message>
    <message>
        <source>Colore di sfondo delle celle selezionate</source>
        <translation>Hintergrundfarbe der ausgewählten Felder</translation>
    </message>
    <message>
        <source>Pulisci</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Apri</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Le mappature si aprono dall&apos;editor della mappatura manuale</source>
        <translation>Belegungen werden im Fenster der manuellen Belegung geöffnet</translation>
    </message>
    <message>
        <source>Salva</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Le mappature si salvano dall&apos;editor della mappatura manuale</source>
        <translation>Belegungen werden im Fenster der manuellen Belegung gespeichert</translation>
    </message>
    <message>
        <source>Nuova</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Crea una nuova cartella</source>
        <translation>Neuen Kartensatz erstellen</translation>
    </message>
    <message>
        <source>Esci</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Esce dal programma</source>
        <translation>Programm beenden</translation>
    </message>
    <message>
        <source>Confronta blocchi</source>
        <translation>Karten vergleichen</translation>
    </message>
    <message>
        <source>Verifica che non vi siano blocchi uguali</source>
        <translation>Prüfen, ob alle Karten verschieden sind</translation>
    </message>
    <message>
        <source>Opzioni</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Impostazioni del programma</source>
        <translation>Programmeinstellungen</translation>
    </message>
    <message>
        <source>Informazioni</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Informazioni sul programma</source>
        <translation>Informationen zum Programm</translation>
    </message>
    <message>
        <source>Welcome to %1 %2!</source>
        <translation>Willkommen bei %1 %2!</translation>
    </message>
    <message>
        <source>La cartella non contiene pagine!</source>
        <translation>Der Kartensatz enthält keine Seiten!</translation>
    </message>
    <message>
        <source>Aggiungere pagine alla cartella prima di proseguire.</source>
        <translation>Fügen Sie dem Kartensatz zuerst Seiten hinzu.</translation>
    </message>
    <message>
        <source>Creazione file annullata!</source>
        <translation>Erstellen der Datei abgebrochen!</translation>
    </message>
    <message>
        <source>Errore nella creazione del file:
%1</source>
        <translation>Fehler beim Erstellen der Datei:
%1</translation>
    </message>
    <message>
        <source>Salva le cartelle su file</source>
        <translation>Karten in Datei speichern</translation>
    </message>
    <message>
        <source>Cartella classica</source>
        <translation>Klassischer Kartensatz</translation>
    </message>
    <message>
        <source>Sei sicuro di voler uscire?</source>
        <translation>Möchten Sie das Programm wirklich beenden?</translation>
    </message>
    <message>
        <source>Generatore di cartelle per la Quintra.
Advanced Bingo cards generator.</source>
        <translation>Kartengenerator für Quintra.
Vielseitiger Generator für Bingokarten.</translation>
    </message>
    <message>
        <source>Modifica valori</source>
        <translation>Werte bearbeiten</translation>
    </message>
    <message>
        <source>Errore durante la modifica del valore nella tabella.</source>
        <translation>Fehler beim Ändern des Werts in der Tabelle.</translation>
    </message>
    <message>
        <source>Problema durante la modifica del valore nella tabella.</source>
        <translation>Problem beim Ändern des Werts in der Tabelle.</translation>
    </message>
    <message>
        <source>Vuoi impostare il valore come STRINGA?</source>
        <translation>Möchten Sie den Wert als TEXT übernehmen?</translation>
    </message>
    <message>
        <source>Vuoi impostare il valore come CELLA VUOTA?</source>
        <translation>Möchten Sie daraus ein LEERES FELD machen?</translation>
    </message>
    <message>
        <source>Cella impostata come IMMAGINE.
Il percorso dell&apos;immagine deve essere scelto tramite il pannello a lato.</source>
        <translation>Das Feld ist jetzt ein BILD.
Wählen Sie die Bilddatei in der Seitenleiste.</translation>
    </message>
    <message>
        <source>L&apos;immagine per la cella selezionata è quella visibile. La si vuole Cambiare?</source>
        <translation>Das gezeigte Bild ist das des ausgewählten Feldes. Möchten Sie es ändern?</translation>
    </message>
    <message>
        <source>Apre un&apos;immagine da inserire nella cella</source>
        <translation>Bild für das Feld öffnen</translation>
    </message>
    <message>
        <source>JPEG (*.jpg *.jpeg);; TIFF (*.tif);; PNG (*.png);; GIF (*.gif);; BITMAP (*.bmp)</source>
        <translation>JPEG (*.jpg *.jpeg);; TIFF (*.tif);; PNG (*.png);; GIF (*.gif);; BITMAP (*.bmp)</translation>
    </message>
    <message>
        <source>L&apos;immagine per la cella selezionata è quella visisbile. Proseguire?</source>
        <translation>Das gezeigte Bild wird für das ausgewählte Feld verwendet. Fortfahren?</translation>
    </message>
    <message>
        <source>Immagine impostata correttamente.</source>
        <translation>Bild geändert.</translation>
    </message>
    <message>
        <source>Selezione immagine cella</source>
        <translation>Auswahl des Bildes für das Feld</translation>
    </message>
    <message>
        <source>Sei sicuro di voler cancellare la cartella e crearne una nuova?</source>
        <translation>Möchten Sie den Kartensatz wirklich löschen und einen neuen erstellen?</translation>
    </message>
    <message>
        <source>Creazione annullata.</source>
        <translation>Erstellung abgebrochen.</translation>
    </message>
    <message>
        <source>Cartella di %1 pagine, %2 blocchi %3X%4 generata</source>
        <translation>Kartensatz erzeugt - Seiten: %1, Karten pro Seite: %2 (%3×%4)</translation>
    </message>
    <message>
        <source>Problemi di impostazione parametri: non posso proseguire!</source>
        <translation>Probleme mit den Parametern: Fortfahren nicht möglich!</translation>
    </message>
    <message>
        <source>%1

Vuoi proseguire comunque?</source>
        <translation>%1

Möchten Sie trotzdem fortfahren?</translation>
    </message>
    <message>
        <source>Sto cancellando la precedente cartella...</source>
        <translation>Der vorherige Kartensatz wird gelöscht...</translation>
    </message>
    <message>
        <source>Sto creando una cartella di %1 pagine, %2 blocchi %3X%4...</source>
        <translation>Kartensatz wird erstellt - Seiten: %1, Karten pro Seite: %2 (%3×%4)...</translation>
    </message>
    <message>
        <source>Generazione numeri:
Errore durante l&apos;aggiunta della pagina %i.</source>
        <translation>Erzeugung der Zahlen:
Fehler beim Hinzufügen der Seite %i.</translation>
    </message>
    <message>
        <source>Sono state create solo pagine vuote!</source>
        <translation>Es wurden nur leere Seiten erstellt!</translation>
    </message>
    <message>
        <source>Generazione numeri:
Errore durante la generazione della pagina %1.</source>
        <translation>Erzeugung der Zahlen:
Fehler beim Erzeugen der Seite %1.</translation>
    </message>
    <message>
        <source>Sto creando l&apos;ambiente per la mappatura manuale, attendere...</source>
        <translation>Die manuelle Belegung wird vorbereitet, bitte warten...</translation>
    </message>
    <message>
        <source>Ambiente per la mappatura manuale creato.</source>
        <translation>Manuelle Belegung bereit.</translation>
    </message>
    <message>
        <source>Celle della pagina</source>
        <translation>Felder der Seite</translation>
    </message>
    <message>
        <source>La cartella non contiene la pagina da visualizzare (fuori range)!</source>
        <translation>Der Kartensatz enthält die anzuzeigende Seite nicht (außerhalb des Bereichs)!</translation>
    </message>
    <message>
        <source>Cartella vuota!</source>
        <translation>Leerer Kartensatz!</translation>
    </message>
    <message>
        <source>La cartella è vuota!</source>
        <translation>Der Kartensatz ist leer!</translation>
    </message>
    <message>
        <source>Problema nell&apos;eliminazione della pagina!
Pagina non eliminata.</source>
        <translation>Problem beim Löschen der Seite!
Seite nicht gelöscht.</translation>
    </message>
    <message>
        <source>Pagina eliminata correttamente.</source>
        <translation>Seite gelöscht.</translation>
    </message>
    <message>
        <source>Nessuna selezione</source>
        <translation>Keine Auswahl</translation>
    </message>
    <message>
        <source>Cella mancante</source>
        <translation>Fehlendes Feld</translation>
    </message>
    <message>
        <source>Cella selezionata</source>
        <translation>Ausgewähltes Feld</translation>
    </message>
    <message>
        <source>Selezione multipla</source>
        <translation>Mehrfachauswahl</translation>
    </message>
    <message>
        <source>Impostazioni corrette</source>
        <translation>Einstellungen in Ordnung</translation>
    </message>
    <message>
        <source>Estrazioni per riga: Per un corretto funzionamento si consiglia il valore 5.</source>
        <translation>Belegte Felder pro Reihe: Für eine einwandfreie Funktion wird der Wert 5 empfohlen.</translation>
    </message>
    <message>
        <source>Nessun elemento selezionato!</source>
        <translation>Nichts ausgewählt!</translation>
    </message>
    <message>
        <source>Modifica colore sfondo blocchi applicata.</source>
        <translation>Hintergrundfarbe der Karten geändert.</translation>
    </message>
    <message>
        <source>Modifica colore testo cella applicata.</source>
        <translation>Textfarbe des Feldes geändert.</translation>
    </message>
    <message>
        <source>Modifica colore sfondo cella applicata.</source>
        <translation>Hintergrundfarbe des Feldes geändert.</translation>
    </message>
    <message>
        <source>Attenzione</source>
        <translation>Achtung</translation>
    </message>
    <message>
        <source>Errore: Le pagine hanno dimensioni diverse.
Alcune celle sono state omesse!</source>
        <translation>Fehler: Die Seiten sind unterschiedlich groß.
Einige Felder wurden ausgelassen!</translation>
    </message>
    <message>
        <source>Modifica applicata.</source>
        <translation>Änderung übernommen.</translation>
    </message>
    <message>
        <source>Font impostato correttamente.</source>
        <translation>Schriftart geändert.</translation>
    </message>
    <message>
        <source>Verifica blocchi uguali:
Pagine cartella non ancora generate.
Impossibile procedere alla verifica!</source>
        <translation>Prüfung auf gleiche Karten:
Die Seiten des Kartensatzes wurden noch nicht erzeugt.
Prüfung nicht möglich!</translation>
    </message>
    <message>
        <source>Non vi sono blocchi uguali!

%1</source>
        <translation>Es gibt keine gleichen Karten!

%1</translation>
    </message>
    <message>
        <source>Vi sono %1 blocchi uguali!

%2

Vuoi visualizzarli?</source>
        <translation>Gleiche Karten gefunden: %1!

%2

Möchten Sie sie ansehen?</translation>
    </message>
    <message>
        <source>... e altre coppie di blocchi uguali: %1.</source>
        <translation>... und weitere Paare gleicher Karten: %1.</translation>
    </message>
    <message>
        <source>Anteprima di stampa</source>
        <translation>Druckvorschau</translation>
    </message>
    <message>
        <source>Mostra la pagina come sarà stampata</source>
        <translation>Seite so anzeigen, wie sie gedruckt wird</translation>
    </message>
    <message>
        <source>Parametri</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>Stile</source>
        <translation>Stil</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Visualizza</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Strumenti</source>
        <translation>E&amp;xtras</translation>
    </message>
    <message>
        <source>&amp;Aiuto</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Per ricominciare da capo scegliere &quot;Nuova&quot;</source>
        <translation>Um neu zu beginnen, &quot;Neu&quot; wählen</translation>
    </message>
    <message>
        <source>Linea esterna</source>
        <translation>Außenlinie</translation>
    </message>
    <message>
        <source>Linea interna</source>
        <translation>Innenlinie</translation>
    </message>
    <message>
        <source>Salva registro...</source>
        <translation>Register speichern...</translation>
    </message>
    <message>
        <source>Salva le schede in un file di testo, una per riga</source>
        <translation>Karten in einer Textdatei speichern, eine pro Zeile</translation>
    </message>
    <message>
        <source>Serata...</source>
        <translation>Bingoabend...</translation>
    </message>
    <message>
        <source>Chiama i numeri e controlla le schede</source>
        <translation>Zahlen ziehen und Karten prüfen</translation>
    </message>
    <message>
        <source>Salva il registro su file</source>
        <translation>Register in Datei speichern</translation>
    </message>
    <message>
        <source>Registro salvato.</source>
        <translation>Register gespeichert.</translation>
    </message>
    <message>
        <source>L&apos;immagine di base non può essere letta:
%1

Le celle con immagine resteranno vuote in stampa.</source>
        <translation>Das Standardbild kann nicht gelesen werden:
%1

Felder mit Bildern werden leer gedruckt.</translation>
    </message>
    <message>
        <source>Stampa non riuscita!</source>
        <translation>Drucken fehlgeschlagen!</translation>
    </message>
    <message>
        <source>Pagine non stampate dopo l&apos;ultima modifica: %1.</source>
        <translation>Seit der letzten Änderung nicht gedruckte Seiten: %1.</translation>
    </message>
    <message>
        <source>Tutte le pagine sono state stampate dopo l&apos;ultima modifica.</source>
        <translation>Alle Seiten wurden seit der letzten Änderung gedruckt.</translation>
    </message>
    <message>
        <source>Lo spazio tra i blocchi è troppo grande per il foglio: le cartelle escono dalla pagina.
Pagine: %1</source>
        <translation>Der Abstand zwischen den Karten ist zu groß für das Papier: Die Karten ragen über die Seite hinaus.
Seiten: %1</translation>
    </message>
    <message>
        <source>Il colore delle linee non ha ancora effetto!</source>
        <translation>Die Farbe der Linien hat noch keine Wirkung!</translation>
    </message>
    <message>
        <source>Immagine...</source>
        <translation>Bild...</translation>
    </message>
    <message>
        <source>Generazione numeri:
Altre pagine non generate (contate da 1): %1</source>
        <translation>Erzeugung der Zahlen:
Weitere nicht erzeugte Seiten (ab 1 gezählt): %1</translation>
    </message>
    <message>
        <source>Riassumi le altre in un solo messaggio</source>
        <translation>Die übrigen in einer Meldung zusammenfassen</translation>
    </message>
    <message>
        <source>Valori di config.ini cambiati:
%1</source>
        <translation>Geänderte Werte aus config.ini:
%1</translation>
    </message>
    <message>
        <source>Numera i blocchi in stampa</source>
        <translation>Karten beim Drucken nummerieren</translation>
    </message>
    <message>
        <source>Stampa accanto a ogni blocco il suo numero, per esempio 12.3</source>
        <translation>Neben jede Karte ihre Nummer drucken, zum Beispiel 12.3</translation>
    </message>
    <message>
        <source>Numeri di blocco non stampati per mancanza di posto: %1.</source>
        <translation>Aus Platzmangel nicht gedruckte Kartennummern: %1.</translation>
    </message>
    <message>
        <source>Manuale</source>
        <translation>Handbuch</translation>
    </message>
    <message>
        <source>Come si usa il programma, passo per passo</source>
        <translation>Wie man das Programm benutzt, Schritt für Schritt</translation>
    </message>
    <message>
        <source>Svuota le celle selezionate</source>
        <translation>Ausgewählte Felder leeren</translation>
    </message>
</context>
<context>
    <name>Manuale</name>
    <message>
        <source>Torna dove si leggeva prima</source>
        <translation>Zurück zur vorher gelesenen Stelle</translation>
    </message>
    <message>
        <source>Indietro</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Mostra l&apos;indice del manuale</source>
        <translation>Inhaltsverzeichnis des Handbuchs anzeigen</translation>
    </message>
    <message>
        <source>Indice</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>Cerca:</source>
        <translation>Suchen:</translation>
    </message>
    <message>
        <source>Testo da cercare nel manuale: Invio va al prossimo</source>
        <translation>Im Handbuch zu suchender Text; die Eingabetaste springt zur nächsten Stelle</translation>
    </message>
    <message>
        <source>Testo del manuale</source>
        <translation>Text des Handbuchs</translation>
    </message>
    <message>
        <source>Cerca</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Testo non trovato!</source>
        <translation>Text nicht gefunden!</translation>
    </message>
    <message>
        <source>Quintra - Manuale</source>
        <translation>Quintra - Handbuch</translation>
    </message>
    <message>
        <source>Il manuale non è in %1!</source>
        <translation>Das Handbuch ist nicht in %1!</translation>
    </message>
</context>
<context>
    <name>MappingFile</name>
    <message>
        <source>nessun contenuto</source>
        <translation>kein Inhalt</translation>
    </message>
    <message>
        <source>il primo carattere non indica il numero di righe della pagina</source>
        <translation>das erste Zeichen gibt nicht die Anzahl der Reihen der Seite an</translation>
    </message>
    <message>
        <source>caratteri insufficienti per le celle della pagina</source>
        <translation>zu wenige Zeichen für die Felder der Seite</translation>
    </message>
    <message>
        <source>oltre il numero massimo di pagine (%1)</source>
        <translation>über die Höchstzahl der Seiten (%1) hinaus</translation>
    </message>
    <message>
        <source>Queste righe del file non descrivono una pagina e sono state saltate:</source>
        <translation>Diese Zeilen der Datei beschreiben keine Seite und wurden übersprungen:</translation>
    </message>
</context>
<context>
    <name>MemoryQuestion</name>
    <message>
        <source>La memoria libera potrebbe non bastare, e il programma chiudersi.
MB necessari: %1
MB liberi: %2

Vuoi proseguire comunque?</source>
        <translation>Der freie Speicher reicht vielleicht nicht, und das Programm könnte abstürzen.
Benötigte MB: %1
Freie MB: %2

Möchten Sie trotzdem fortfahren?</translation>
    </message>
    <message>
        <source>La memoria libera non è bastata: nulla è cambiato.</source>
        <translation>Der freie Speicher hat nicht gereicht; nichts wurde geändert.</translation>
    </message>
</context>
<context>
    <name>MsgArea</name>
    <message>
        <source>Area messaggi</source>
        <translation>Meldungen</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Salva</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Esci</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Testo modificato</source>
        <translation>Text geändert</translation>
    </message>
    <message>
        <source>Vuoi uscire senza salvare?</source>
        <translation>Möchten Sie das Fenster schließen, ohne zu speichern?</translation>
    </message>
    <message>
        <source>Salva su file</source>
        <translation>In Datei speichern</translation>
    </message>
    <message>
        <source>File salvato con successo.</source>
        <translation>Datei gespeichert.</translation>
    </message>
    <message>
        <source>Errore nel salvataggio del file!</source>
        <translation>Fehler beim Speichern der Datei!</translation>
    </message>
    <message>
        <source>Le modifiche al testo vanno perse.</source>
        <translation>Die Änderungen am Text gehen verloren.</translation>
    </message>
    <message>
        <source>Il testo non è stato toccato.</source>
        <translation>Der Text wurde nicht verändert.</translation>
    </message>
    <message>
        <source>Testo</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Chiude la finestra</source>
        <translation>Fenster schließen</translation>
    </message>
</context>
<context>
    <name>NuovaPartita</name>
    <message>
        <source>Quintra - Nuova partita</source>
        <translation>Quintra - Neue Runde</translation>
    </message>
    <message>
        <source>Numeri da</source>
        <translation>Zahlen von</translation>
    </message>
    <message>
        <source>Il numero minimo del tabellone</source>
        <translation>Die kleinste Zahl auf der Zahlentafel</translation>
    </message>
    <message>
        <source>a</source>
        <translation>bis</translation>
    </message>
    <message>
        <source>Il numero massimo del tabellone</source>
        <translation>Die größte Zahl auf der Zahlentafel</translation>
    </message>
    <message>
        <source>I numeri chiamati (%1) saranno tolti tutti.</source>
        <translation>Alle gezogenen Zahlen (%1) werden zurückgenommen.</translation>
    </message>
</context>
<context>
    <name>Options</name>
    <message>
        <source>Impostazioni</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Consente di ri-selezionare le opzioni al primo avvio del programma</source>
        <translation>Die Optionen des ersten Programmstarts erneut wählen</translation>
    </message>
    <message>
        <source>Impostazioni iniziali (per il prossimo avvio)</source>
        <translation>Einstellungen ab dem nächsten Start</translation>
    </message>
    <message>
        <source>Azzera ed esci</source>
        <translation>Zurücksetzen und beenden</translation>
    </message>
    <message>
        <source>Azzera e continua</source>
        <translation>Zurücksetzen und fortfahren</translation>
    </message>
    <message>
        <source>Modifica le impostazioni direttamente</source>
        <translation>Einstellungen direkt bearbeiten</translation>
    </message>
    <message>
        <source>Modifica diretta</source>
        <translation>Direkt bearbeiten</translation>
    </message>
    <message>
        <source>Problema durante la cancellazione del file:
 %1</source>
        <translation>Problem beim Löschen der Datei:
 %1</translation>
    </message>
    <message>
        <source>File di configurazione eliminato correttamente.</source>
        <translation>Konfigurationsdatei gelöscht.</translation>
    </message>
    <message>
        <source>Proseguire con la cancellazionede del file di configurazione e l&apos;uscita dal programma?</source>
        <translation>Konfigurationsdatei löschen und das Programm beenden?</translation>
    </message>
    <message>
        <source>Proseguire con la cancellazionede del file di configurazione?</source>
        <translation>Konfigurationsdatei löschen?</translation>
    </message>
    <message>
        <source>Quintra - Opzioni</source>
        <translation>Quintra - Optionen</translation>
    </message>
    <message>
        <source>Le impostazioni di config.ini vanno perse.</source>
        <translation>Die Einstellungen in config.ini gehen verloren.</translation>
    </message>
</context>
<context>
    <name>Overwriting</name>
    <message>
        <source>Il file esiste già:
%1

Sostituirlo?</source>
        <translation>Die Datei ist schon vorhanden:
%1

Ersetzen?</translation>
    </message>
</context>
<context>
    <name>PagePreview</name>
    <message>
        <source>Mostra la pagina precedente</source>
        <translation>Vorherige Seite anzeigen</translation>
    </message>
    <message>
        <source>Precedente</source>
        <translation>Vorherige</translation>
    </message>
    <message>
        <source>Mostra la pagina successiva</source>
        <translation>Nächste Seite anzeigen</translation>
    </message>
    <message>
        <source>Successiva</source>
        <translation>Nächste</translation>
    </message>
    <message>
        <source>Ingrandimento:</source>
        <translation>Vergrößerung:</translation>
    </message>
    <message>
        <source>Grandezza in cui la pagina è mostrata</source>
        <translation>Größe, in der die Seite angezeigt wird</translation>
    </message>
    <message>
        <source>Pagina intera</source>
        <translation>Ganze Seite</translation>
    </message>
    <message>
        <source>Larghezza</source>
        <translation>Seitenbreite</translation>
    </message>
    <message>
        <source>Pagina come sarà stampata</source>
        <translation>Seite, wie sie gedruckt wird</translation>
    </message>
    <message>
        <source>Anteprima di stampa</source>
        <translation>Druckvorschau</translation>
    </message>
    <message>
        <source>La cartella è vuota!</source>
        <translation>Der Kartensatz ist leer!</translation>
    </message>
    <message>
        <source>Pagina %1 di %2, %3</source>
        <translation>Seite %1 von %2, %3</translation>
    </message>
    <message>
        <source>100%</source>
        <translation>100&#xa0;%</translation>
    </message>
</context>
<context>
    <name>PageTable</name>
    <message>
        <source>L&apos;immagine di base non può essere letta.</source>
        <translation>Das Standardbild kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>blocco %1, riga %2, colonna %3, %4</source>
        <translation>Karte %1, Reihe %2, Spalte %3, %4</translation>
    </message>
    <message>
        <source>cella mancante</source>
        <translation>fehlendes Feld</translation>
    </message>
</context>
<context>
    <name>ParameterRules</name>
    <message>
        <source>Non posso creare %1 celle piene con solo %2 numeri.</source>
        <translation>Zu wenige Zahlen (%2) für die zu belegenden Felder (%1).</translation>
    </message>
    <message>
        <source>Non posso inserire %1 jolly in sole %2 colonne.</source>
        <translation>Zu viele Bilder (%1) für die Spalten (%2).</translation>
    </message>
    <message>
        <source>Non posso inserire %1 scritte in sole %2 colonne.</source>
        <translation>Zu viele Texte (%1) für die Spalten (%2).</translation>
    </message>
    <message>
        <source>Non posso inserire %1 scritte e immagini in sole %2 colonne.</source>
        <translation>Zu viele Texte und Bilder (%1) für die Spalten (%2).</translation>
    </message>
    <message>
        <source>Non posso inserire %1 jolly con sole %2 estrazioni.</source>
        <translation>Zu viele Bilder (%1) für die belegten Felder pro Reihe (%2).</translation>
    </message>
    <message>
        <source>Non posso inserire %1 scritte con sole %2 estrazioni.</source>
        <translation>Zu viele Texte (%1) für die belegten Felder pro Reihe (%2).</translation>
    </message>
    <message>
        <source>Non posso inserire %1 scritte e immagini con sole %2 estrazioni.</source>
        <translation>Zu viele Texte und Bilder (%1) für die belegten Felder pro Reihe (%2).</translation>
    </message>
    <message>
        <source>Non posso inserire %1 numeri in sole %2 colonne.</source>
        <translation>Zu viele belegte Felder pro Reihe (%1) für die Spalten (%2).</translation>
    </message>
    <message>
        <source>Le pagine totali richieste (%1)
eccedono il massimo consentito (%2).</source>
        <translation>Die gewünschte Gesamtzahl der Seiten (%1)
übersteigt das erlaubte Maximum (%2).</translation>
    </message>
    <message>
        <source>Si sconsiglia di proseguire per le seguenti ragioni:
%1 -&gt; caselle totali richieste.
%2 -&gt; caselle totali in memoria.
%3 -&gt; caselle massime gestibili.
(eventuale crash del programma)</source>
        <translation>Vom Fortfahren wird aus folgenden Gründen abgeraten:
%1 -&gt; insgesamt gewünschte Felder.
%2 -&gt; Felder im Speicher.
%3 -&gt; höchstens verarbeitbare Felder.
(das Programm könnte abstürzen)</translation>
    </message>
    <message>
        <source>Nuova: si apre l&apos;editor della mappatura manuale</source>
        <translation>Neu: öffnet das Fenster der manuellen Belegung</translation>
    </message>
    <message>
        <source>Nuova: %1 pagine × %2 blocchi = %3 blocchi</source>
        <translation>Neu - Seiten × Karten: %1 × %2 = %3</translation>
    </message>
</context>
<context>
    <name>PersonaleChkBox</name>
    <message>
        <source>Numero</source>
        <translation>Zahl</translation>
    </message>
    <message>
        <source>Testo</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Immagine</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Vuota</source>
        <translation>Leer</translation>
    </message>
</context>
<context>
    <name>Premi</name>
    <message>
        <source>Ambo</source>
        <translation>Zweier</translation>
    </message>
    <message>
        <source>Terno</source>
        <translation>Dreier</translation>
    </message>
    <message>
        <source>Quaterna</source>
        <translation>Vierer</translation>
    </message>
    <message>
        <source>Cinquina</source>
        <translation>Linie</translation>
    </message>
    <message>
        <source>Due cinquine</source>
        <translation>Zwei Linien</translation>
    </message>
    <message>
        <source>Tombola</source>
        <translation>Bingo</translation>
    </message>
</context>
<context>
    <name>Registro</name>
    <message>
        <source>nessun contenuto</source>
        <translation>kein Inhalt</translation>
    </message>
    <message>
        <source>testo troncato (file incompleto)</source>
        <translation>Text abgeschnitten (Datei unvollständig)</translation>
    </message>
    <message>
        <source>troppi caratteri per una scheda</source>
        <translation>zu viele Zeichen für eine Karte</translation>
    </message>
    <message>
        <source>all&apos;inizio non vi sono numeri validi di pagina e di scheda</source>
        <translation>am Anfang stehen keine gültigen Nummern von Seite und Karte</translation>
    </message>
    <message>
        <source>manca il segno | prima delle celle</source>
        <translation>das Zeichen | vor den Feldern fehlt</translation>
    </message>
    <message>
        <source>una cella non è né un numero, né un testo tra virgolette, né la parola immagine</source>
        <translation>ein Feld ist weder eine Zahl noch ein Text in Anführungszeichen noch das Wort immagine</translation>
    </message>
    <message>
        <source>un numero è maggiore di %1</source>
        <translation>eine Zahl ist größer als %1</translation>
    </message>
    <message>
        <source>le virgolette di un testo non sono chiuse, o \ è usato male</source>
        <translation>die Anführungszeichen eines Textes sind nicht geschlossen, oder \ ist falsch verwendet</translation>
    </message>
    <message>
        <source>righe o celle oltre il massimo di %1</source>
        <translation>Reihen oder Felder über der Höchstzahl von %1</translation>
    </message>
    <message>
        <source>numeri di pagina e di scheda già usati</source>
        <translation>Nummern von Seite und Karte schon vergeben</translation>
    </message>
    <message>
        <source>Queste righe del registro non sono schede e sono state saltate:</source>
        <translation>Diese Zeilen des Registers sind keine Karten und wurden übersprungen:</translation>
    </message>
    <message>
        <source>Una scheda ha testi troppo lunghi.</source>
        <translation>Die Texte einer Karte sind zu lang.</translation>
    </message>
</context>
<context>
    <name>RigheSaltate</name>
    <message>
        <source>Riga %1: %2.</source>
        <translation>Zeile %1: %2.</translation>
    </message>
    <message>
        <source>Righe da %1 a %2: %3.</source>
        <translation>Zeilen %1 bis %2: %3.</translation>
    </message>
    <message>
        <source>L&apos;elenco continua fino alla riga %1.</source>
        <translation>Die Liste geht bis Zeile %1 weiter.</translation>
    </message>
</context>
<context>
    <name>Serata</name>
    <message>
        <source>Quintra - Serata</source>
        <translation>Quintra - Bingoabend</translation>
    </message>
    <message>
        <source>L&apos;ultimo numero chiamato</source>
        <translation>Die zuletzt gezogene Zahl</translation>
    </message>
    <message>
        <source>I numeri chiamati prima</source>
        <translation>Die zuvor gezogenen Zahlen</translation>
    </message>
    <message>
        <source>Un clic chiama un numero, un altro lo toglie</source>
        <translation>Ein Klick zieht eine Zahl, ein zweiter nimmt sie zurück</translation>
    </message>
    <message>
        <source>Tabellone</source>
        <translation>Zahlentafel</translation>
    </message>
    <message>
        <source>Chiamata</source>
        <translation>Ziehung</translation>
    </message>
    <message>
        <source>Numero</source>
        <translation>Zahl</translation>
    </message>
    <message>
        <source>Il numero da chiamare; se è già stato chiamato viene tolto</source>
        <translation>Die gezogene Zahl; eine schon gezogene wird zurückgenommen</translation>
    </message>
    <message>
        <source>Chiama a caso uno dei numeri rimasti</source>
        <translation>Eine der übrigen Zahlen zufällig ziehen</translation>
    </message>
    <message>
        <source>Estrai</source>
        <translation>Ziehen</translation>
    </message>
    <message>
        <source>Controllo di una scheda</source>
        <translation>Prüfung einer Karte</translation>
    </message>
    <message>
        <source>Scheda</source>
        <translation>Karte</translation>
    </message>
    <message>
        <source>Pagina e scheda, per esempio 12.3</source>
        <translation>Seite und Karte, zum Beispiel 12.3</translation>
    </message>
    <message>
        <source>Mostra la scheda con i numeri chiamati</source>
        <translation>Karte mit den gezogenen Zahlen anzeigen</translation>
    </message>
    <message>
        <source>Controlla</source>
        <translation>Prüfen</translation>
    </message>
    <message>
        <source>Che cosa ha la scheda, e con quale chiamata</source>
        <translation>Was die Karte gewonnen hat, und mit welcher Ziehung</translation>
    </message>
    <message>
        <source>Vincite</source>
        <translation>Gewinne</translation>
    </message>
    <message>
        <source>Schede</source>
        <translation>Karten</translation>
    </message>
    <message>
        <source>Le schede con tutti i numeri chiamati</source>
        <translation>Die Karten, deren Zahlen alle gezogen sind</translation>
    </message>
    <message>
        <source>Le schede a cui manca un solo numero</source>
        <translation>Die Karten, denen nur eine Zahl fehlt</translation>
    </message>
    <message>
        <source>Chiama un numero</source>
        <translation>Zahl eingeben</translation>
    </message>
    <message>
        <source>Controlla una scheda</source>
        <translation>Karte prüfen</translation>
    </message>
    <message>
        <source>Nuova partita...</source>
        <translation>Neue Runde...</translation>
    </message>
    <message>
        <source>Toglie tutti i numeri chiamati e ricomincia</source>
        <translation>Alle gezogenen Zahlen zurücknehmen und neu beginnen</translation>
    </message>
    <message>
        <source>Apri registro...</source>
        <translation>Register öffnen...</translation>
    </message>
    <message>
        <source>Apre un registro</source>
        <translation>Register öffnen</translation>
    </message>
    <message>
        <source>Schermo intero</source>
        <translation>Vollbild</translation>
    </message>
    <message>
        <source>Chiudi</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>immagine</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>%1: chiamata %2, numero %3</source>
        <translation>%1: Ziehung %2, Zahl %3</translation>
    </message>
    <message>
        <source>Nessuna vincita</source>
        <translation>Kein Gewinn</translation>
    </message>
    <message>
        <source>La partita non si può cominciare.</source>
        <translation>Die Runde kann nicht beginnen.</translation>
    </message>
    <message>
        <source>Nuova partita, numeri da %1 a %2.</source>
        <translation>Neue Runde, Zahlen von %1 bis %2.</translation>
    </message>
    <message>
        <source>Il numero %1 non è in gioco: i numeri vanno da %2 a %3!</source>
        <translation>Die Zahl %1 ist nicht im Spiel: Die Zahlen gehen von %2 bis %3!</translation>
    </message>
    <message>
        <source>La chiamata non si può salvare, nulla è cambiato.</source>
        <translation>Die Ziehung kann nicht gespeichert werden; nichts wurde geändert.</translation>
    </message>
    <message>
        <source>Chiamato il %1.</source>
        <translation>Gezogen: %1.</translation>
    </message>
    <message>
        <source>Tolto il %1.</source>
        <translation>Zurückgenommen: %1.</translation>
    </message>
    <message>
        <source>Tutti i numeri sono stati chiamati!</source>
        <translation>Alle Zahlen sind gezogen!</translation>
    </message>
    <message>
        <source>Scrivere un numero da %1 a %2!</source>
        <translation>Bitte eine Zahl von %1 bis %2 eingeben!</translation>
    </message>
    <message>
        <source>Scrivere la pagina e la scheda, per esempio 12.3!</source>
        <translation>Bitte Seite und Karte eingeben, zum Beispiel 12.3!</translation>
    </message>
    <message>
        <source>La scheda %1 non esiste!</source>
        <translation>Es gibt keine Karte %1!</translation>
    </message>
    <message>
        <source>Scheda %1.</source>
        <translation>Karte %1.</translation>
    </message>
    <message>
        <source>Numeri chiamati: %1 di %2</source>
        <translation>Gezogene Zahlen: %1 von %2</translation>
    </message>
    <message>
        <source>In attesa di un numero: %1</source>
        <translation>Mit einer fehlenden Zahl: %1</translation>
    </message>
    <message>
        <source>Nessuna scheda</source>
        <translation>Keine Karte</translation>
    </message>
    <message>
        <source>Scheda %1</source>
        <translation>Karte %1</translation>
    </message>
    <message>
        <source>La serata di prima non si può mettere da parte.</source>
        <translation>Der frühere Bingoabend kann nicht beiseitegelegt werden.</translation>
    </message>
    <message>
        <source>In %1 c&apos;è una serata con altre schede (numeri chiamati: %2).

Continuare quella? Con No ne comincia una nuova, e quella viene messa da parte.</source>
        <translation>Es gibt einen Bingoabend mit anderen Karten (gezogene Zahlen: %2) in %1.

Diesen fortsetzen? Mit Nein beginnt ein neuer, und der alte wird beiseitegelegt.</translation>
    </message>
    <message>
        <source>La serata non si può salvare in %1.</source>
        <translation>Der Bingoabend kann nicht in %1 gespeichert werden.</translation>
    </message>
    <message>
        <source>Dove salvare la serata</source>
        <translation>Ordner für den Bingoabend</translation>
    </message>
    <message>
        <source>Il registro non si può leggere.</source>
        <translation>Das Register kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Il registro non contiene schede.</source>
        <translation>Das Register enthält keine Karten.</translation>
    </message>
    <message>
        <source>La serata non si può salvare accanto al registro.</source>
        <translation>Der Bingoabend kann nicht neben dem Register gespeichert werden.</translation>
    </message>
    <message>
        <source>La serata non può continuare.</source>
        <translation>Der Bingoabend kann nicht fortgesetzt werden.</translation>
    </message>
    <message>
        <source>Schede: %1. Numeri da %2 a %3. Chiamati: %4.</source>
        <translation>Karten: %1. Zahlen von %2 bis %3. Gezogen: %4.</translation>
    </message>
    <message>
        <source>Questo registro è già aperto.</source>
        <translation>Dieses Register ist schon geöffnet.</translation>
    </message>
    <message>
        <source>&amp;Partita</source>
        <translation>&amp;Runde</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Visualizza</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>Righe illeggibili nel file delle chiamate: %1!</source>
        <translation>Unlesbare Zeilen in der Datei der gezogenen Zahlen: %1!</translation>
    </message>
    <message>
        <source>Tombola: %1</source>
        <translation>Bingo: %1</translation>
    </message>
    <message>
        <source>Il file delle chiamate non si può leggere.</source>
        <translation>Die Datei der Ziehungen kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Le chiamate di prima sono illeggibili e sono state messe da parte:
%1</source>
        <translation>Die früheren Ziehungen sind unlesbar und wurden beiseitegelegt:
%1</translation>
    </message>
    <message>
        <source>Non è un file.</source>
        <translation>Es ist keine Datei.</translation>
    </message>
    <message>
        <source>Il registro non si può leggere fino in fondo. Schede lette: %1.</source>
        <translation>Das Register kann nicht bis zum Ende gelesen werden. Gelesene Karten: %1.</translation>
    </message>
    <message>
        <source>&amp;Aiuto</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Manuale</source>
        <translation>Handbuch</translation>
    </message>
    <message>
        <source>Come si usa il programma, passo per passo</source>
        <translation>Wie man das Programm benutzt, Schritt für Schritt</translation>
    </message>
</context>
<context>
    <name>SpokenContent</name>
    <message>
        <source>numero</source>
        <translation>Zahl</translation>
    </message>
    <message>
        <source>numero %1</source>
        <translation>Zahl %1</translation>
    </message>
    <message>
        <source>testo</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>testo %1</source>
        <translation>Text %1</translation>
    </message>
    <message>
        <source>immagine</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>vuota</source>
        <translation>leer</translation>
    </message>
</context>
<context>
    <name>TabelloneModel</name>
    <message>
        <source>nessun numero</source>
        <translation>keine Zahl</translation>
    </message>
</context>
</TS>
