<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_GB" sourcelanguage="it_IT">
<context>
    <name>Cartella</name>
    <message>
        <source>Pag %1 blocco %2 = Pag %3 blocco %4</source>
        <translation>Page %1, card %2 = Page %3, card %4</translation>
    </message>
    <message>
        <source>Blocchi verificati: %1
Confronti tra blocchi: %2
Celle verificate: %3
Blocchi uguali: %4 (%5%)</source>
        <translation>Cards checked: %1
Comparisons between cards: %2
Cells checked: %3
Identical cards: %4 (%5%)</translation>
    </message>
    <message>
        <source>La cartella e&apos; vuota od ha solo una pagina.
I blocchi di una pagina sono sempre diversi.</source>
        <translation>The card set is empty or has only one page.
The cards on a page are always different.</translation>
    </message>
    <message>
        <source>Confronto pagina %1 di %2</source>
        <translation>Comparing page %1 of %2</translation>
    </message>
    <message>
        <source>numero</source>
        <translation>number</translation>
    </message>
    <message>
        <source>testo</source>
        <translation>text</translation>
    </message>
    <message>
        <source>immagine</source>
        <translation>picture</translation>
    </message>
    <message>
        <source>vuota</source>
        <translation>empty</translation>
    </message>
</context>
<context>
    <name>CasellaAccessibile</name>
    <message>
        <source>riga %1, colonna %2, %3, %4</source>
        <translation>row %1, column %2, %3, %4</translation>
    </message>
    <message>
        <source>spuntata</source>
        <translation>ticked</translation>
    </message>
    <message>
        <source>non spuntata</source>
        <translation>not ticked</translation>
    </message>
</context>
<context>
    <name>CaselleDelegate</name>
    <message>
        <source>%1, chiamato</source>
        <translation>%1, called</translation>
    </message>
    <message>
        <source>%1, non chiamato</source>
        <translation>%1, not called</translation>
    </message>
</context>
<context>
    <name>CreateOutputFile</name>
    <message>
        <source>Formato file sconosciuto!</source>
        <translation>Unknown file format!</translation>
    </message>
    <message>
        <source>Formato %1 non disponibile. Creazione annullata.</source>
        <translation>Format %1 is not available. Creation cancelled.</translation>
    </message>
    <message>
        <source>Impossibile scrivere sul file!</source>
        <translation>Cannot write to the file!</translation>
    </message>
    <message>
        <source>PDF: Stampa pagina %1 di %2 (%3%) in corso...</source>
        <translation>PDF: printing page %1 of %2 (%3%)...</translation>
    </message>
    <message>
        <source>Impossibile continuare a scrivere sul file!</source>
        <translation>Cannot go on writing to the file!</translation>
    </message>
    <message>
        <source>Stampa PDF completata!</source>
        <translation>PDF printing complete!</translation>
    </message>
    <message>
        <source>File creato con successo!

Nome: %1
Percorso: %2

Pagine: %3
Dimensione: %4 Bytes (%5 MB)
----------------------------------------

Dimensioni pagina: %6</source>
        <translation>File created successfully!

Name: %1
Path: %2

Pages: %3
Size: %4 bytes (%5 MB)
----------------------------------------

Page size: %6</translation>
    </message>
</context>
<context>
    <name>Diario</name>
    <message>
        <source>La serata è già aperta in un&apos;altra finestra.</source>
        <translation>The bingo night is already open in another window.</translation>
    </message>
    <message>
        <source>Non è un file.</source>
        <translation>It is not a file.</translation>
    </message>
</context>
<context>
    <name>EditPersonale</name>
    <message>
        <source>Pagina</source>
        <translation>Page</translation>
    </message>
    <message>
        <source>La pagina mostrata</source>
        <translation>The page shown</translation>
    </message>
    <message>
        <source>di</source>
        <translation>of</translation>
    </message>
    <message>
        <source>Il numero di pagine</source>
        <translation>The number of pages</translation>
    </message>
    <message>
        <source>I numeri di questa pagina sono estratti colonna per colonna, ciascuna con il proprio intervallo</source>
        <translation>The numbers on this page are drawn column by column, each from its own range</translation>
    </message>
    <message>
        <source>Ordina numeri sulle colonne</source>
        <translation>Draw numbers by column</translation>
    </message>
    <message>
        <source>Selezione</source>
        <translation>Selection</translation>
    </message>
    <message>
        <source>La selezione comprende tutte le celle della pagina</source>
        <translation>The selection covers all the cells on the page</translation>
    </message>
    <message>
        <source>Tutte</source>
        <translation>All</translation>
    </message>
    <message>
        <source>Riga</source>
        <translation>Row</translation>
    </message>
    <message>
        <source>da</source>
        <translation>from</translation>
    </message>
    <message>
        <source>Prima riga della selezione</source>
        <translation>First row of the selection</translation>
    </message>
    <message>
        <source>a</source>
        <translation>to</translation>
    </message>
    <message>
        <source>Ultima riga della selezione</source>
        <translation>Last row of the selection</translation>
    </message>
    <message>
        <source>Colonna</source>
        <translation>Column</translation>
    </message>
    <message>
        <source>Prima colonna della selezione</source>
        <translation>First column of the selection</translation>
    </message>
    <message>
        <source>Ultima colonna della selezione</source>
        <translation>Last column of the selection</translation>
    </message>
    <message>
        <source>Spunta le celle della selezione</source>
        <translation>Tick the cells in the selection</translation>
    </message>
    <message>
        <source>Riempi</source>
        <translation>Fill</translation>
    </message>
    <message>
        <source>Toglie la spunta dalle celle della selezione</source>
        <translation>Untick the cells in the selection</translation>
    </message>
    <message>
        <source>Svuota</source>
        <translation>Clear</translation>
    </message>
    <message>
        <source>Inverte la spunta delle celle della selezione</source>
        <translation>Swap ticked and unticked cells in the selection</translation>
    </message>
    <message>
        <source>Inverti</source>
        <translation>Invert</translation>
    </message>
    <message>
        <source>Tipo delle celle</source>
        <translation>Cell type</translation>
    </message>
    <message>
        <source>Celle con un numero</source>
        <translation>Cells with a number</translation>
    </message>
    <message>
        <source>Numero</source>
        <translation>Number</translation>
    </message>
    <message>
        <source>Celle con un testo</source>
        <translation>Cells with text</translation>
    </message>
    <message>
        <source>Testo</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Celle con un&apos;immagine</source>
        <translation>Cells with a picture</translation>
    </message>
    <message>
        <source>Immagine</source>
        <translation>Picture</translation>
    </message>
    <message>
        <source>&lt;p&gt;Imposta il tipo delle celle selezionate sopra!&lt;/p&gt;&lt;p&gt;Per cambiare le singole celle usare il tasto destro del mouse su di esse.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Set the type of the cells selected above!&lt;/p&gt;&lt;p&gt;To change single cells, click them with the right mouse button.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Imposta selezionate</source>
        <translation>Apply to selection</translation>
    </message>
    <message>
        <source>Schema corrente</source>
        <translation>Current layout</translation>
    </message>
    <message>
        <source>da pag.</source>
        <translation>from p.</translation>
    </message>
    <message>
        <source>Prima pagina su cui copiare lo schema</source>
        <translation>First page to copy the layout to</translation>
    </message>
    <message>
        <source>Ultima pagina su cui copiare lo schema</source>
        <translation>Last page to copy the layout to</translation>
    </message>
    <message>
        <source>Copia lo schema su tutte le pagine</source>
        <translation>Copy the layout to all pages</translation>
    </message>
    <message>
        <source>tutte</source>
        <translation>all</translation>
    </message>
    <message>
        <source>Copia lo schema della pagina mostrata sulle pagine indicate</source>
        <translation>Copy the layout of the page shown to the given pages</translation>
    </message>
    <message>
        <source>Copia</source>
        <translation>Copy</translation>
    </message>
    <message>
        <source>Crea le pagine e le aggiunge alla cartella</source>
        <translation>Create the pages and add them to the card set</translation>
    </message>
    <message>
        <source>Crea pagine</source>
        <translation>Create pages</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Nuovo</source>
        <translation>New</translation>
    </message>
    <message>
        <source>Per iniziare una nuova mappatura chiudere questa finestra e riaprirla dalla finestra principale</source>
        <translation>To start a new layout, close this window and open it again from the main window</translation>
    </message>
    <message>
        <source>Apri</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>Apre uno schema di pagine da file</source>
        <translation>Open a page layout from a file</translation>
    </message>
    <message>
        <source>Salva</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>&lt;p&gt;Salva lo schema delle pagine su file. Una pagina con più di 255 celle non può essere riletta per intero e l&apos;opzione &quot;Ordina numeri sulle colonne&quot; non viene salvata.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Save the page layout to a file. A page with more than 255 cells cannot be read back in full, and the option &quot;Draw numbers by column&quot; is not saved.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Esci</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Chiude la mappatura manuale</source>
        <translation>Close the manual layout</translation>
    </message>
    <message>
        <source>Mappatura manuale</source>
        <translation>Manual layout</translation>
    </message>
    <message>
        <source>Non vi sono pagine da creare!</source>
        <translation>There are no pages to create!</translation>
    </message>
    <message>
        <source>MAPPATURA MANUALE</source>
        <translation>MANUAL LAYOUT</translation>
    </message>
    <message>
        <source>Tipo cambiato in: %1</source>
        <translation>Type changed to: %1</translation>
    </message>
    <message>
        <source>I numeri da generare (%1) sono maggiori di quelli disponibili (%2).</source>
        <translation>There are more numbers to generate (%1) than available (%2).</translation>
    </message>
    <message>
        <source>Impostazioni corrette</source>
        <translation>Settings are correct</translation>
    </message>
    <message>
        <source>Le pagine selezionate verranno sovrascritte con lo schema corrente. Proseguire?</source>
        <translation>The selected pages will be overwritten with the current layout. Continue?</translation>
    </message>
    <message>
        <source>Copia schema effettuata!</source>
        <translation>Layout copied!</translation>
    </message>
    <message>
        <source>Pagine create e aggiunte alla cartella principale!</source>
        <translation>Pages created and added to the card set!</translation>
    </message>
    <message>
        <source>Errore durante la creazione delle pagine!

%1</source>
        <translation>Error while creating the pages!

%1</translation>
    </message>
    <message>
        <source>Sei sicuro di voler chiudere?</source>
        <translation>Are you sure you want to close this window?</translation>
    </message>
    <message>
        <source>Salva le cartelle su file</source>
        <translation>Save the layout to a file</translation>
    </message>
    <message>
        <source>Creazione file annullata!</source>
        <translation>File creation cancelled!</translation>
    </message>
    <message>
        <source>Pagina %1 di %2 salvata</source>
        <translation>Page %1 of %2 saved</translation>
    </message>
    <message>
        <source>File creato con successo!

Nome: %1
Estensione: %2
Percorso: %3

Pagine: %4
Dimensione: %5 Bytes (%6 MB)
</source>
        <translation>File created successfully!

Name: %1
Extension: %2
Path: %3

Pages: %4
Size: %5 bytes (%6 MB)
</translation>
    </message>
    <message>
        <source>Aprendo un nuovo progetto tutto il lavoro in corso di modifica sarà perso. Proseguire?</source>
        <translation>Opening another layout discards all the work in progress. Continue?</translation>
    </message>
    <message>
        <source>Apre un file di cartelle</source>
        <translation>Open a layout file</translation>
    </message>
    <message>
        <source>Apertura file annullata!</source>
        <translation>Opening cancelled!</translation>
    </message>
    <message>
        <source>Sto leggendo la pagina %1</source>
        <translation>Reading page %1</translation>
    </message>
    <message>
        <source>Apertura completata!</source>
        <translation>File opened!</translation>
    </message>
    <message>
        <source>Sto caricando la pagina %1 di %2</source>
        <translation>Loading page %1 of %2</translation>
    </message>
    <message>
        <source>Salva lo schema delle pagine su file</source>
        <translation>Save the page layout to a file</translation>
    </message>
    <message>
        <source>Errore nel salvataggio del file:
%1

%2</source>
        <translation>Error while saving the file:
%1

%2</translation>
    </message>
    <message>
        <source>Non è un file di cartelle:
%1</source>
        <translation>This is not a layout file:
%1</translation>
    </message>
    <message>
        <source>Errore nella lettura del file:
%1

%2</source>
        <translation>Error while reading the file:
%1

%2</translation>
    </message>
    <message>
        <source>Nessuna riga del file descrive una pagina.</source>
        <translation>No line of the file describes a page.</translation>
    </message>
    <message>
        <source>Non vi sono pagine.
%1</source>
        <translation>There are no pages.
%1</translation>
    </message>
    <message>
        <source>Le pagine con troppe celle non saranno rilette per intero dal file.
Pagine: %1</source>
        <translation>Pages with too many cells cannot be read back in full from the file.
Pages: %1</translation>
    </message>
    <message>
        <source>&lt;p&gt;I numeri spuntati e quelli disponibili. Cambiando pagina il conteggio prosegue da quello di prima, finché non si cambia un tipo o si copia uno schema.&lt;/p&gt;</source>
        <translation>&lt;p&gt;The numbers ticked, and those available. On another page the count goes on from the one before, until a type is changed or a layout is copied.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;Un clic o la barra spaziatrice mette o toglie la spunta; trascinando il mouse con il tasto sinistro premuto si spuntano le celle attraversate.&lt;/p&gt;&lt;p&gt;Il tasto destro del mouse o il tasto T passa al tipo successivo, tranne che nelle pagine lette da un file.&lt;/p&gt;</source>
        <translation>&lt;p&gt;A click or the space bar ticks or unticks a cell; dragging with the left mouse button ticks the cells on the way.&lt;/p&gt;&lt;p&gt;The right mouse button or the T key changes to the next type, except on pages read from a file.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Numeri: %1 di %2</source>
        <translation>Numbers: %1 of %2</translation>
    </message>
    <message>
        <source>Le pagine totali richieste (%1)
eccedono il massimo consentito (%2).</source>
        <translation>The total number of pages requested (%1)
exceeds the maximum allowed (%2).</translation>
    </message>
    <message>
        <source>Aiuto</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>Manuale</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>Come si usa il programma, passo per passo</source>
        <translation>How to use the program, step by step</translation>
    </message>
    <message>
        <source>Copia schema annullata!</source>
        <translation>Copying cancelled!</translation>
    </message>
</context>
<context>
    <name>ElencoSchede</name>
    <message>
        <source>%1: chiamata %2</source>
        <translation>%1: call %2</translation>
    </message>
    <message>
        <source>%1: manca il %2</source>
        <translation>%1: needs %2</translation>
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
        <translation>Select the language:</translation>
    </message>
    <message>
        <source>&lt;p&gt;Lingua del programma fino alla chiusura e dei commenti nelle impostazioni; ai prossimi avvii vale la lingua del sistema&lt;/p&gt;</source>
        <translation>&lt;p&gt;Language of the program until it is closed, and of the comments in the settings; later starts use the system language&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Impostazioni di default: </source>
        <translation>Default settings: </translation>
    </message>
    <message>
        <source>Impostazioni di default</source>
        <translation>Default settings</translation>
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
        <translation>Card generator for Quintra.</translation>
    </message>
    <message>
        <source>Numeri - Minimo</source>
        <translation>Numbers - Minimum</translation>
    </message>
    <message>
        <source>Numeri - Massimo</source>
        <translation>Numbers - Maximum</translation>
    </message>
    <message>
        <source>Classica - Numero blocchi</source>
        <translation>Classic - Cards per page</translation>
    </message>
    <message>
        <source>Classica - Numero righe per blocco</source>
        <translation>Classic - Rows per card</translation>
    </message>
    <message>
        <source>Classica - Numero estrazioni per riga</source>
        <translation>Classic - Filled cells per row</translation>
    </message>
    <message>
        <source>Classica - Numero colonne</source>
        <translation>Classic - Columns</translation>
    </message>
    <message>
        <source>Classica - Numero jolly per riga</source>
        <translation>Classic - Pictures (jokers) per row</translation>
    </message>
    <message>
        <source>Testo di base nelle celle</source>
        <translation>Default text in cells</translation>
    </message>
    <message>
        <source>Immagine di base nelle celle</source>
        <translation>Default picture in cells</translation>
    </message>
    <message>
        <source>Directory di base dove salvare</source>
        <translation>Default folder for saving</translation>
    </message>
    <message>
        <source>Lingua di default</source>
        <translation>Default language</translation>
    </message>
    <message>
        <source>Configurazione</source>
        <translation>Configuration</translation>
    </message>
    <message>
        <source>Impossibile commentare il file, formato errato!</source>
        <translation>Cannot add comments to the file: wrong format!</translation>
    </message>
    <message>
        <source>Continua con queste impostazioni</source>
        <translation>Continue with these settings</translation>
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
        <translation>No pages to generate!</translation>
    </message>
    <message>
        <source>Nessun numero generato!</source>
        <translation>No numbers generated!</translation>
    </message>
    <message>
        <source>Genera per colonne:
Impossibile generare %1 numeri sulla colonna n^ %2
La colonna vorrebbe %3 numeri diversi tra %4 e %5
ma cio&apos; risulta impossibile in quanto il range e&apos; composto da %6 numeri.</source>
        <translation>Drawing numbers by column:
Too many numbers (%1) for column no. %2
The column needs that many different numbers (%3) between %4 and %5,
but this is impossible because the range has fewer (%6).</translation>
    </message>
    <message>
        <source>Generazione numeri:
Errore durante l&apos;aggiunta della pagina %i.</source>
        <translation>Number generation:
Error while adding page %i.</translation>
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
        <translation>Card set</translation>
    </message>
    <message>
        <source>Numero di pagine</source>
        <translation>Number of pages</translation>
    </message>
    <message>
        <source>Numero totale di pagine (cartelle)</source>
        <translation>Total number of pages (sheets of cards)</translation>
    </message>
    <message>
        <source>Numero di blocchi per pagina</source>
        <translation>Cards per page</translation>
    </message>
    <message>
        <source>Numero di righe per blocco</source>
        <translation>Rows per card</translation>
    </message>
    <message>
        <source>Numero di colonne</source>
        <translation>Columns</translation>
    </message>
    <message>
        <source>Numero di celle (colonne) per riga</source>
        <translation>Number of cells (columns) per row</translation>
    </message>
    <message>
        <source>Celle di ogni riga</source>
        <translation>Cells in each row</translation>
    </message>
    <message>
        <source>Numero di estrazioni per riga</source>
        <translation>Filled cells per row</translation>
    </message>
    <message>
        <source>Numero di celle da riempire (numeri,immagini,scritte) in ogni riga</source>
        <translation>Number of cells to fill (numbers, pictures, texts) in each row</translation>
    </message>
    <message>
        <source>Numero di immagini per riga</source>
        <translation>Pictures per row</translation>
    </message>
    <message>
        <source>Inserisci delle immagini al posto dei numeri nelle celle</source>
        <translation>Put pictures (jokers) in cells instead of numbers</translation>
    </message>
    <message>
        <source>Numero di scritte per riga</source>
        <translation>Texts per row</translation>
    </message>
    <message>
        <source>Inserisci del testo al posto dei numeri nelle celle</source>
        <translation>Put texts in cells instead of numbers</translation>
    </message>
    <message>
        <source>Numeri da estrarre</source>
        <translation>Numbers to draw</translation>
    </message>
    <message>
        <source>Numero minimo da estrarre</source>
        <translation>Lowest number</translation>
    </message>
    <message>
        <source>Numero massimo da estrarre</source>
        <translation>Highest number</translation>
    </message>
    <message>
        <source>Disegna a mano quali celle riempire, pagina per pagina</source>
        <translation>Choose by hand which cells to fill, page by page</translation>
    </message>
    <message>
        <source>Mappatura manuale</source>
        <translation>Manual layout</translation>
    </message>
    <message>
        <source>Crea le pagine richieste e le aggiunge alla cartella</source>
        <translation>Create the requested pages and add them to the card set</translation>
    </message>
    <message>
        <source>Aggiungi pagine</source>
        <translation>Add pages</translation>
    </message>
    <message>
        <source>Stampa la cartella su file</source>
        <translation>Print the card set to a file</translation>
    </message>
    <message>
        <source>STAMPA</source>
        <translation>PRINT</translation>
    </message>
    <message>
        <source>Pagina</source>
        <translation>Page</translation>
    </message>
    <message>
        <source>Pagina visualizzata</source>
        <translation>Page shown</translation>
    </message>
    <message>
        <source>di</source>
        <translation>of</translation>
    </message>
    <message>
        <source>Numero di pagine della cartella</source>
        <translation>Number of pages in the card set</translation>
    </message>
    <message>
        <source>Elimina la pagina visualizzata</source>
        <translation>Delete the page shown</translation>
    </message>
    <message>
        <source>Elimina</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Formato</source>
        <translation>Paper size</translation>
    </message>
    <message>
        <source>Formato della carta su cui stampare</source>
        <translation>Size of the paper to print on</translation>
    </message>
    <message>
        <source>Spazio tra i blocchi (mm)</source>
        <translation>Space between cards (mm)</translation>
    </message>
    <message>
        <source>Spazio tra i blocchi della pagina, in millimetri</source>
        <translation>Space between the cards on the page, in millimetres</translation>
    </message>
    <message>
        <source>I comandi di pagina e di blocco agiscono su tutte le pagine</source>
        <translation>Page and card commands act on all pages</translation>
    </message>
    <message>
        <source>Applica a tutte</source>
        <translation>Apply to all</translation>
    </message>
    <message>
        <source>Imposta lo spazio tra i blocchi</source>
        <translation>Set the space between the cards</translation>
    </message>
    <message>
        <source>Applica</source>
        <translation>Apply</translation>
    </message>
    <message>
        <source>Colori</source>
        <translation>Colours</translation>
    </message>
    <message>
        <source>Colore di sfondo della pagina</source>
        <translation>Background colour of the page</translation>
    </message>
    <message>
        <source>Colora sfondo</source>
        <translation>Background colour</translation>
    </message>
    <message>
        <source>Blocco</source>
        <translation>Card</translation>
    </message>
    <message>
        <source>Blocco selezionato</source>
        <translation>Selected card</translation>
    </message>
    <message>
        <source>Blocchi della pagina</source>
        <translation>Cards on the page</translation>
    </message>
    <message>
        <source>Spessore linea esterna</source>
        <translation>Outer line width</translation>
    </message>
    <message>
        <source>Spessore della linea esterna del blocco (non ha ancora effetto)</source>
        <translation>Width of the card&apos;s outer line (no effect yet)</translation>
    </message>
    <message>
        <source>Spessore linea interna</source>
        <translation>Inner line width</translation>
    </message>
    <message>
        <source>Spessore delle linee interne del blocco (non ha ancora effetto)</source>
        <translation>Width of the card&apos;s inner lines (no effect yet)</translation>
    </message>
    <message>
        <source>I comandi di blocco agiscono su tutti i blocchi</source>
        <translation>Card commands act on all cards</translation>
    </message>
    <message>
        <source>Applica a tutti</source>
        <translation>Apply to all</translation>
    </message>
    <message>
        <source>Applica le impostazioni del blocco (non ha ancora effetto)</source>
        <translation>Apply the card settings (no effect yet)</translation>
    </message>
    <message>
        <source>Colore di sfondo delle celle del blocco</source>
        <translation>Background colour of the card&apos;s cells</translation>
    </message>
    <message>
        <source>Colore della linea esterna del blocco (non ha ancora effetto)</source>
        <translation>Colour of the card&apos;s outer line (no effect yet)</translation>
    </message>
    <message>
        <source>Colore delle linee interne del blocco (non ha ancora effetto)</source>
        <translation>Colour of the card&apos;s inner lines (no effect yet)</translation>
    </message>
    <message>
        <source>Cella</source>
        <translation>Cell</translation>
    </message>
    <message>
        <source>Riga</source>
        <translation>Row</translation>
    </message>
    <message>
        <source>Riga della cella nel suo blocco</source>
        <translation>Row of the cell in its card</translation>
    </message>
    <message>
        <source>Colonna</source>
        <translation>Column</translation>
    </message>
    <message>
        <source>Colonna della cella</source>
        <translation>Column of the cell</translation>
    </message>
    <message>
        <source>Tipo della cella</source>
        <translation>Type of the cell</translation>
    </message>
    <message>
        <source>Carattere delle celle selezionate</source>
        <translation>Font of the selected cells</translation>
    </message>
    <message>
        <source>Carattere...</source>
        <translation>Font...</translation>
    </message>
    <message>
        <source>Carattere della cella</source>
        <translation>Font of the cell</translation>
    </message>
    <message>
        <source>Sceglie l&apos;immagine della cella selezionata</source>
        <translation>Choose the picture of the selected cell</translation>
    </message>
    <message>
        <source>I comandi di cella agiscono sulle stesse celle di tutte le pagine</source>
        <translation>Cell commands act on the same cells on all pages</translation>
    </message>
    <message>
        <source>Applica le impostazioni della cella (non ha ancora effetto)</source>
        <translation>Apply the cell settings (no effect yet)</translation>
    </message>
    <message>
        <source>Colore del testo delle celle selezionate</source>
        <translation>Text colour of the selected cells</translation>
    </message>
    <message>
        <source>Colora testo</source>
        <translation>Text colour</translation>
    </message>
    <message>
        <source>Colore di sfondo delle celle selezionate</source>
        <translation>Background colour of the selected cells</translation>
    </message>
    <message>
        <source>Pulisci</source>
        <translation>Clear</translation>
    </message>
    <message>
        <source>Apri</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>Le mappature si aprono dall&apos;editor della mappatura manuale</source>
        <translation>Layouts are opened from the manual layout editor</translation>
    </message>
    <message>
        <source>Salva</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Le mappature si salvano dall&apos;editor della mappatura manuale</source>
        <translation>Layouts are saved from the manual layout editor</translation>
    </message>
    <message>
        <source>Nuova</source>
        <translation>New</translation>
    </message>
    <message>
        <source>Crea una nuova cartella</source>
        <translation>Create a new card set</translation>
    </message>
    <message>
        <source>Esci</source>
        <translation>Quit</translation>
    </message>
    <message>
        <source>Esce dal programma</source>
        <translation>Quit the program</translation>
    </message>
    <message>
        <source>Confronta blocchi</source>
        <translation>Compare cards</translation>
    </message>
    <message>
        <source>Verifica che non vi siano blocchi uguali</source>
        <translation>Check that no two cards are identical</translation>
    </message>
    <message>
        <source>Opzioni</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Impostazioni del programma</source>
        <translation>Program settings</translation>
    </message>
    <message>
        <source>Informazioni</source>
        <translation>About</translation>
    </message>
    <message>
        <source>Informazioni sul programma</source>
        <translation>About the program</translation>
    </message>
    <message>
        <source>Welcome to %1 %2!</source>
        <translation>Welcome to %1 %2!</translation>
    </message>
    <message>
        <source>La cartella non contiene pagine!</source>
        <translation>The card set has no pages!</translation>
    </message>
    <message>
        <source>Aggiungere pagine alla cartella prima di proseguire.</source>
        <translation>Add pages to the card set before continuing.</translation>
    </message>
    <message>
        <source>Creazione file annullata!</source>
        <translation>File creation cancelled!</translation>
    </message>
    <message>
        <source>Errore nella creazione del file:
%1</source>
        <translation>Error while creating the file:
%1</translation>
    </message>
    <message>
        <source>Salva le cartelle su file</source>
        <translation>Save the cards to a file</translation>
    </message>
    <message>
        <source>Cartella classica</source>
        <translation>Classic card set</translation>
    </message>
    <message>
        <source>Sei sicuro di voler uscire?</source>
        <translation>Are you sure you want to quit?</translation>
    </message>
    <message>
        <source>Generatore di cartelle per la Quintra.
Advanced Bingo cards generator.</source>
        <translation>Card generator for Quintra.
Advanced bingo card generator.</translation>
    </message>
    <message>
        <source>Modifica valori</source>
        <translation>Edit values</translation>
    </message>
    <message>
        <source>Errore durante la modifica del valore nella tabella.</source>
        <translation>Error while changing the value in the table.</translation>
    </message>
    <message>
        <source>Problema durante la modifica del valore nella tabella.</source>
        <translation>Problem while changing the value in the table.</translation>
    </message>
    <message>
        <source>Vuoi impostare il valore come STRINGA?</source>
        <translation>Do you want to store the value as TEXT?</translation>
    </message>
    <message>
        <source>Vuoi impostare il valore come CELLA VUOTA?</source>
        <translation>Do you want to make this an EMPTY CELL?</translation>
    </message>
    <message>
        <source>Cella impostata come IMMAGINE.
Il percorso dell&apos;immagine deve essere scelto tramite il pannello a lato.</source>
        <translation>The cell is now a PICTURE.
Choose its file in the side panel.</translation>
    </message>
    <message>
        <source>L&apos;immagine per la cella selezionata è quella visibile. La si vuole Cambiare?</source>
        <translation>The picture shown is that of the selected cell. Do you want to change it?</translation>
    </message>
    <message>
        <source>Apre un&apos;immagine da inserire nella cella</source>
        <translation>Open a picture to put in the cell</translation>
    </message>
    <message>
        <source>JPEG (*.jpg *.jpeg);; TIFF (*.tif);; PNG (*.png);; GIF (*.gif);; BITMAP (*.bmp)</source>
        <translation>JPEG (*.jpg *.jpeg);; TIFF (*.tif);; PNG (*.png);; GIF (*.gif);; BITMAP (*.bmp)</translation>
    </message>
    <message>
        <source>L&apos;immagine per la cella selezionata è quella visisbile. Proseguire?</source>
        <translation>The picture shown will be that of the selected cell. Continue?</translation>
    </message>
    <message>
        <source>Immagine impostata correttamente.</source>
        <translation>Picture set.</translation>
    </message>
    <message>
        <source>Selezione immagine cella</source>
        <translation>Choosing the cell picture</translation>
    </message>
    <message>
        <source>Sei sicuro di voler cancellare la cartella e crearne una nuova?</source>
        <translation>Are you sure you want to delete the card set and create a new one?</translation>
    </message>
    <message>
        <source>Creazione annullata.</source>
        <translation>Creation cancelled.</translation>
    </message>
    <message>
        <source>Cartella di %1 pagine, %2 blocchi %3X%4 generata</source>
        <translation>Card set generated - pages: %1, cards per page: %2 (%3×%4)</translation>
    </message>
    <message>
        <source>Problemi di impostazione parametri: non posso proseguire!</source>
        <translation>Problems with the parameters: cannot continue!</translation>
    </message>
    <message>
        <source>%1

Vuoi proseguire comunque?</source>
        <translation>%1

Do you want to continue anyway?</translation>
    </message>
    <message>
        <source>Sto cancellando la precedente cartella...</source>
        <translation>Deleting the previous card set...</translation>
    </message>
    <message>
        <source>Sto creando una cartella di %1 pagine, %2 blocchi %3X%4...</source>
        <translation>Creating a card set - pages: %1, cards per page: %2 (%3×%4)...</translation>
    </message>
    <message>
        <source>Generazione numeri:
Errore durante l&apos;aggiunta della pagina %i.</source>
        <translation>Number generation:
Error while adding page %i.</translation>
    </message>
    <message>
        <source>Sono state create solo pagine vuote!</source>
        <translation>Only empty pages were created!</translation>
    </message>
    <message>
        <source>Generazione numeri:
Errore durante la generazione della pagina %1.</source>
        <translation>Number generation:
Error while generating page %1.</translation>
    </message>
    <message>
        <source>Sto creando l&apos;ambiente per la mappatura manuale, attendere...</source>
        <translation>Preparing the manual layout, please wait...</translation>
    </message>
    <message>
        <source>Ambiente per la mappatura manuale creato.</source>
        <translation>Manual layout ready.</translation>
    </message>
    <message>
        <source>Celle della pagina</source>
        <translation>Cells on the page</translation>
    </message>
    <message>
        <source>La cartella non contiene la pagina da visualizzare (fuori range)!</source>
        <translation>The card set does not contain the page to show (out of range)!</translation>
    </message>
    <message>
        <source>Cartella vuota!</source>
        <translation>Empty card set!</translation>
    </message>
    <message>
        <source>La cartella è vuota!</source>
        <translation>The card set is empty!</translation>
    </message>
    <message>
        <source>Problema nell&apos;eliminazione della pagina!
Pagina non eliminata.</source>
        <translation>Problem while deleting the page!
Page not deleted.</translation>
    </message>
    <message>
        <source>Pagina eliminata correttamente.</source>
        <translation>Page deleted.</translation>
    </message>
    <message>
        <source>Nessuna selezione</source>
        <translation>No selection</translation>
    </message>
    <message>
        <source>Cella mancante</source>
        <translation>Missing cell</translation>
    </message>
    <message>
        <source>Cella selezionata</source>
        <translation>Selected cell</translation>
    </message>
    <message>
        <source>Selezione multipla</source>
        <translation>Multiple selection</translation>
    </message>
    <message>
        <source>Impostazioni corrette</source>
        <translation>Settings are correct</translation>
    </message>
    <message>
        <source>Estrazioni per riga: Per un corretto funzionamento si consiglia il valore 5.</source>
        <translation>Filled cells per row: the value 5 is recommended for proper operation.</translation>
    </message>
    <message>
        <source>Nessun elemento selezionato!</source>
        <translation>Nothing selected!</translation>
    </message>
    <message>
        <source>Modifica colore sfondo blocchi applicata.</source>
        <translation>Card background colour changed.</translation>
    </message>
    <message>
        <source>Modifica colore testo cella applicata.</source>
        <translation>Cell text colour changed.</translation>
    </message>
    <message>
        <source>Modifica colore sfondo cella applicata.</source>
        <translation>Cell background colour changed.</translation>
    </message>
    <message>
        <source>Attenzione</source>
        <translation>Warning</translation>
    </message>
    <message>
        <source>Errore: Le pagine hanno dimensioni diverse.
Alcune celle sono state omesse!</source>
        <translation>Error: the pages have different sizes.
Some cells were skipped!</translation>
    </message>
    <message>
        <source>Modifica applicata.</source>
        <translation>Change applied.</translation>
    </message>
    <message>
        <source>Font impostato correttamente.</source>
        <translation>Font set.</translation>
    </message>
    <message>
        <source>Verifica blocchi uguali:
Pagine cartella non ancora generate.
Impossibile procedere alla verifica!</source>
        <translation>Check for identical cards:
The pages of the card set have not been generated yet.
Cannot run the check!</translation>
    </message>
    <message>
        <source>Non vi sono blocchi uguali!

%1</source>
        <translation>There are no identical cards!

%1</translation>
    </message>
    <message>
        <source>Vi sono %1 blocchi uguali!

%2

Vuoi visualizzarli?</source>
        <translation>Identical cards found: %1!

%2

Do you want to see them?</translation>
    </message>
    <message>
        <source>... e altre coppie di blocchi uguali: %1.</source>
        <translation>... and more pairs of identical cards: %1.</translation>
    </message>
    <message>
        <source>Anteprima di stampa</source>
        <translation>Print preview</translation>
    </message>
    <message>
        <source>Mostra la pagina come sarà stampata</source>
        <translation>Show the page as it will be printed</translation>
    </message>
    <message>
        <source>Parametri</source>
        <translation>Parameters</translation>
    </message>
    <message>
        <source>Stile</source>
        <translation>Style</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;Visualizza</source>
        <translation>&amp;View</translation>
    </message>
    <message>
        <source>&amp;Strumenti</source>
        <translation>&amp;Tools</translation>
    </message>
    <message>
        <source>&amp;Aiuto</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>Per ricominciare da capo scegliere &quot;Nuova&quot;</source>
        <translation>To start afresh choose &quot;New&quot;</translation>
    </message>
    <message>
        <source>Linea esterna</source>
        <translation>Outer line</translation>
    </message>
    <message>
        <source>Linea interna</source>
        <translation>Inner line</translation>
    </message>
    <message>
        <source>Salva registro...</source>
        <translation>Save register...</translation>
    </message>
    <message>
        <source>Salva le schede in un file di testo, una per riga</source>
        <translation>Save the cards to a text file, one per line</translation>
    </message>
    <message>
        <source>Serata...</source>
        <translation>Bingo night...</translation>
    </message>
    <message>
        <source>Chiama i numeri e controlla le schede</source>
        <translation>Call the numbers and check the cards</translation>
    </message>
    <message>
        <source>Salva il registro su file</source>
        <translation>Save the register to a file</translation>
    </message>
    <message>
        <source>Registro salvato.</source>
        <translation>Register saved.</translation>
    </message>
    <message>
        <source>L&apos;immagine di base non può essere letta:
%1

Le celle con immagine resteranno vuote in stampa.</source>
        <translation>The default picture cannot be read:
%1

Cells with pictures will be printed blank.</translation>
    </message>
    <message>
        <source>Stampa non riuscita!</source>
        <translation>Printing failed!</translation>
    </message>
    <message>
        <source>Pagine non stampate dopo l&apos;ultima modifica: %1.</source>
        <translation>Pages not printed since the last change: %1.</translation>
    </message>
    <message>
        <source>Tutte le pagine sono state stampate dopo l&apos;ultima modifica.</source>
        <translation>All pages have been printed since the last change.</translation>
    </message>
    <message>
        <source>Lo spazio tra i blocchi è troppo grande per il foglio: le cartelle escono dalla pagina.
Pagine: %1</source>
        <translation>The space between the cards is too large for the paper: the cards run off the page.
Pages: %1</translation>
    </message>
    <message>
        <source>Il colore delle linee non ha ancora effetto!</source>
        <translation>The colour of the lines has no effect yet!</translation>
    </message>
    <message>
        <source>Immagine...</source>
        <translation>Picture...</translation>
    </message>
    <message>
        <source>Generazione numeri:
Altre pagine non generate (contate da 1): %1</source>
        <translation>Number generation:
Other pages not generated (counted from 1): %1</translation>
    </message>
    <message>
        <source>Riassumi le altre in un solo messaggio</source>
        <translation>Summarise the others in one message</translation>
    </message>
    <message>
        <source>Valori di config.ini cambiati:
%1</source>
        <translation>Changed values of config.ini:
%1</translation>
    </message>
    <message>
        <source>Numera i blocchi in stampa</source>
        <translation>Number the cards when printing</translation>
    </message>
    <message>
        <source>Stampa accanto a ogni blocco il suo numero, per esempio 12.3</source>
        <translation>Print its number beside each card, for example 12.3</translation>
    </message>
    <message>
        <source>Numeri di blocco non stampati per mancanza di posto: %1.</source>
        <translation>Card numbers not printed for lack of space: %1.</translation>
    </message>
    <message>
        <source>Manuale</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>Come si usa il programma, passo per passo</source>
        <translation>How to use the program, step by step</translation>
    </message>
    <message>
        <source>Svuota le celle selezionate</source>
        <translation>Empty the selected cells</translation>
    </message>
</context>
<context>
    <name>Manuale</name>
    <message>
        <source>Torna dove si leggeva prima</source>
        <translation>Go back to where you were reading before</translation>
    </message>
    <message>
        <source>Indietro</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>Mostra l&apos;indice del manuale</source>
        <translation>Show the contents of the manual</translation>
    </message>
    <message>
        <source>Indice</source>
        <translation>Contents</translation>
    </message>
    <message>
        <source>Cerca:</source>
        <translation>Search:</translation>
    </message>
    <message>
        <source>Testo da cercare nel manuale: Invio va al prossimo</source>
        <translation>Text to search for in the manual; Enter goes to the next match</translation>
    </message>
    <message>
        <source>Testo del manuale</source>
        <translation>Text of the manual</translation>
    </message>
    <message>
        <source>Cerca</source>
        <translation>Search</translation>
    </message>
    <message>
        <source>Testo non trovato!</source>
        <translation>Text not found!</translation>
    </message>
    <message>
        <source>Quintra - Manuale</source>
        <translation>Quintra - Manual</translation>
    </message>
    <message>
        <source>Il manuale non è in %1!</source>
        <translation>The manual is not in %1!</translation>
    </message>
</context>
<context>
    <name>MappingFile</name>
    <message>
        <source>nessun contenuto</source>
        <translation>no content</translation>
    </message>
    <message>
        <source>il primo carattere non indica il numero di righe della pagina</source>
        <translation>the first character does not give the number of rows on the page</translation>
    </message>
    <message>
        <source>caratteri insufficienti per le celle della pagina</source>
        <translation>too few characters for the cells of the page</translation>
    </message>
    <message>
        <source>oltre il numero massimo di pagine (%1)</source>
        <translation>beyond the maximum number of pages (%1)</translation>
    </message>
    <message>
        <source>Queste righe del file non descrivono una pagina e sono state saltate:</source>
        <translation>These lines of the file do not describe a page and were skipped:</translation>
    </message>
</context>
<context>
    <name>MemoryQuestion</name>
    <message>
        <source>La memoria libera potrebbe non bastare, e il programma chiudersi.
MB necessari: %1
MB liberi: %2

Vuoi proseguire comunque?</source>
        <translation>The free memory may not be enough, and the program may crash.
MB needed: %1
MB free: %2

Do you want to continue anyway?</translation>
    </message>
    <message>
        <source>La memoria libera non è bastata: nulla è cambiato.</source>
        <translation>There was not enough free memory: nothing has changed.</translation>
    </message>
</context>
<context>
    <name>MsgArea</name>
    <message>
        <source>Area messaggi</source>
        <translation>Messages</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Salva</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Esci</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Testo modificato</source>
        <translation>Text changed</translation>
    </message>
    <message>
        <source>Vuoi uscire senza salvare?</source>
        <translation>Do you want to close this window without saving?</translation>
    </message>
    <message>
        <source>Salva su file</source>
        <translation>Save to file</translation>
    </message>
    <message>
        <source>File salvato con successo.</source>
        <translation>File saved.</translation>
    </message>
    <message>
        <source>Errore nel salvataggio del file!</source>
        <translation>Error while saving the file!</translation>
    </message>
    <message>
        <source>Le modifiche al testo vanno perse.</source>
        <translation>The changes to the text will be lost.</translation>
    </message>
    <message>
        <source>Il testo non è stato toccato.</source>
        <translation>The text has not been changed.</translation>
    </message>
    <message>
        <source>Testo</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Chiude la finestra</source>
        <translation>Close the window</translation>
    </message>
</context>
<context>
    <name>NuovaPartita</name>
    <message>
        <source>Quintra - Nuova partita</source>
        <translation>Quintra - New game</translation>
    </message>
    <message>
        <source>Numeri da</source>
        <translation>Numbers from</translation>
    </message>
    <message>
        <source>Il numero minimo del tabellone</source>
        <translation>The lowest number on the board</translation>
    </message>
    <message>
        <source>a</source>
        <translation>to</translation>
    </message>
    <message>
        <source>Il numero massimo del tabellone</source>
        <translation>The highest number on the board</translation>
    </message>
    <message>
        <source>I numeri chiamati (%1) saranno tolti tutti.</source>
        <translation>The numbers called (%1) will all be taken back.</translation>
    </message>
</context>
<context>
    <name>Options</name>
    <message>
        <source>Impostazioni</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>Consente di ri-selezionare le opzioni al primo avvio del programma</source>
        <translation>Choose the first-start options of the program again</translation>
    </message>
    <message>
        <source>Impostazioni iniziali (per il prossimo avvio)</source>
        <translation>Initial settings (for the next start)</translation>
    </message>
    <message>
        <source>Azzera ed esci</source>
        <translation>Reset and quit</translation>
    </message>
    <message>
        <source>Azzera e continua</source>
        <translation>Reset and continue</translation>
    </message>
    <message>
        <source>Modifica le impostazioni direttamente</source>
        <translation>Edit the settings directly</translation>
    </message>
    <message>
        <source>Modifica diretta</source>
        <translation>Edit directly</translation>
    </message>
    <message>
        <source>Problema durante la cancellazione del file:
 %1</source>
        <translation>Problem while deleting the file:
 %1</translation>
    </message>
    <message>
        <source>File di configurazione eliminato correttamente.</source>
        <translation>Configuration file deleted.</translation>
    </message>
    <message>
        <source>Proseguire con la cancellazionede del file di configurazione e l&apos;uscita dal programma?</source>
        <translation>Delete the configuration file and quit the program?</translation>
    </message>
    <message>
        <source>Proseguire con la cancellazionede del file di configurazione?</source>
        <translation>Delete the configuration file?</translation>
    </message>
    <message>
        <source>Quintra - Opzioni</source>
        <translation>Quintra - Options</translation>
    </message>
    <message>
        <source>Le impostazioni di config.ini vanno perse.</source>
        <translation>The settings in config.ini will be lost.</translation>
    </message>
</context>
<context>
    <name>Overwriting</name>
    <message>
        <source>Il file esiste già:
%1

Sostituirlo?</source>
        <translation>The file already exists:
%1

Replace it?</translation>
    </message>
</context>
<context>
    <name>PagePreview</name>
    <message>
        <source>Mostra la pagina precedente</source>
        <translation>Show the previous page</translation>
    </message>
    <message>
        <source>Precedente</source>
        <translation>Previous</translation>
    </message>
    <message>
        <source>Mostra la pagina successiva</source>
        <translation>Show the next page</translation>
    </message>
    <message>
        <source>Successiva</source>
        <translation>Next</translation>
    </message>
    <message>
        <source>Ingrandimento:</source>
        <translation>Zoom:</translation>
    </message>
    <message>
        <source>Grandezza in cui la pagina è mostrata</source>
        <translation>Size at which the page is shown</translation>
    </message>
    <message>
        <source>Pagina intera</source>
        <translation>Whole page</translation>
    </message>
    <message>
        <source>Larghezza</source>
        <translation>Page width</translation>
    </message>
    <message>
        <source>Pagina come sarà stampata</source>
        <translation>Page as it will be printed</translation>
    </message>
    <message>
        <source>Anteprima di stampa</source>
        <translation>Print preview</translation>
    </message>
    <message>
        <source>La cartella è vuota!</source>
        <translation>The card set is empty!</translation>
    </message>
    <message>
        <source>Pagina %1 di %2, %3</source>
        <translation>Page %1 of %2, %3</translation>
    </message>
    <message>
        <source>100%</source>
        <translation>100%</translation>
    </message>
</context>
<context>
    <name>PageTable</name>
    <message>
        <source>L&apos;immagine di base non può essere letta.</source>
        <translation>The default picture cannot be read.</translation>
    </message>
    <message>
        <source>blocco %1, riga %2, colonna %3, %4</source>
        <translation>card %1, row %2, column %3, %4</translation>
    </message>
    <message>
        <source>cella mancante</source>
        <translation>missing cell</translation>
    </message>
</context>
<context>
    <name>ParameterRules</name>
    <message>
        <source>Non posso creare %1 celle piene con solo %2 numeri.</source>
        <translation>Too few numbers (%2) for the cells to fill (%1).</translation>
    </message>
    <message>
        <source>Non posso inserire %1 jolly in sole %2 colonne.</source>
        <translation>Too many pictures (%1) for the columns (%2).</translation>
    </message>
    <message>
        <source>Non posso inserire %1 scritte in sole %2 colonne.</source>
        <translation>Too many texts (%1) for the columns (%2).</translation>
    </message>
    <message>
        <source>Non posso inserire %1 scritte e immagini in sole %2 colonne.</source>
        <translation>Too many texts and pictures (%1) for the columns (%2).</translation>
    </message>
    <message>
        <source>Non posso inserire %1 jolly con sole %2 estrazioni.</source>
        <translation>Too many pictures (%1) for the filled cells per row (%2).</translation>
    </message>
    <message>
        <source>Non posso inserire %1 scritte con sole %2 estrazioni.</source>
        <translation>Too many texts (%1) for the filled cells per row (%2).</translation>
    </message>
    <message>
        <source>Non posso inserire %1 scritte e immagini con sole %2 estrazioni.</source>
        <translation>Too many texts and pictures (%1) for the filled cells per row (%2).</translation>
    </message>
    <message>
        <source>Non posso inserire %1 numeri in sole %2 colonne.</source>
        <translation>Too many filled cells per row (%1) for the columns (%2).</translation>
    </message>
    <message>
        <source>Le pagine totali richieste (%1)
eccedono il massimo consentito (%2).</source>
        <translation>The total number of pages requested (%1)
exceeds the maximum allowed (%2).</translation>
    </message>
    <message>
        <source>Si sconsiglia di proseguire per le seguenti ragioni:
%1 -&gt; caselle totali richieste.
%2 -&gt; caselle totali in memoria.
%3 -&gt; caselle massime gestibili.
(eventuale crash del programma)</source>
        <translation>Continuing is not advised for the following reasons:
%1 -&gt; total cells requested.
%2 -&gt; total cells in memory.
%3 -&gt; maximum number of cells that can be handled.
(the program may crash)</translation>
    </message>
    <message>
        <source>Nuova: si apre l&apos;editor della mappatura manuale</source>
        <translation>New: opens the manual layout editor</translation>
    </message>
    <message>
        <source>Nuova: %1 pagine × %2 blocchi = %3 blocchi</source>
        <translation>New - pages × cards: %1 × %2 = %3</translation>
    </message>
</context>
<context>
    <name>PersonaleChkBox</name>
    <message>
        <source>Numero</source>
        <translation>Number</translation>
    </message>
    <message>
        <source>Testo</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Immagine</source>
        <translation>Picture</translation>
    </message>
    <message>
        <source>Vuota</source>
        <translation>Empty</translation>
    </message>
</context>
<context>
    <name>Premi</name>
    <message>
        <source>Ambo</source>
        <translation>Two in a line</translation>
    </message>
    <message>
        <source>Terno</source>
        <translation>Three in a line</translation>
    </message>
    <message>
        <source>Quaterna</source>
        <translation>Four in a line</translation>
    </message>
    <message>
        <source>Cinquina</source>
        <translation>Line</translation>
    </message>
    <message>
        <source>Due cinquine</source>
        <translation>Two lines</translation>
    </message>
    <message>
        <source>Tombola</source>
        <translation>Full house</translation>
    </message>
</context>
<context>
    <name>Registro</name>
    <message>
        <source>nessun contenuto</source>
        <translation>no content</translation>
    </message>
    <message>
        <source>testo troncato (file incompleto)</source>
        <translation>text cut off (file incomplete)</translation>
    </message>
    <message>
        <source>troppi caratteri per una scheda</source>
        <translation>too many characters for a card</translation>
    </message>
    <message>
        <source>all&apos;inizio non vi sono numeri validi di pagina e di scheda</source>
        <translation>no valid numbers of page and card at the start</translation>
    </message>
    <message>
        <source>manca il segno | prima delle celle</source>
        <translation>the sign | before the cells is missing</translation>
    </message>
    <message>
        <source>una cella non è né un numero, né un testo tra virgolette, né la parola immagine</source>
        <translation>a cell is neither a number nor a text in quotes nor the word immagine</translation>
    </message>
    <message>
        <source>un numero è maggiore di %1</source>
        <translation>a number is greater than %1</translation>
    </message>
    <message>
        <source>le virgolette di un testo non sono chiuse, o \ è usato male</source>
        <translation>the quotes of a text are not closed, or \ is used wrongly</translation>
    </message>
    <message>
        <source>righe o celle oltre il massimo di %1</source>
        <translation>rows or cells beyond the maximum of %1</translation>
    </message>
    <message>
        <source>numeri di pagina e di scheda già usati</source>
        <translation>page and card numbers already used</translation>
    </message>
    <message>
        <source>Queste righe del registro non sono schede e sono state saltate:</source>
        <translation>These lines of the register are not cards and were skipped:</translation>
    </message>
    <message>
        <source>Una scheda ha testi troppo lunghi.</source>
        <translation>The texts of a card are too long.</translation>
    </message>
</context>
<context>
    <name>RigheSaltate</name>
    <message>
        <source>Riga %1: %2.</source>
        <translation>Line %1: %2.</translation>
    </message>
    <message>
        <source>Righe da %1 a %2: %3.</source>
        <translation>Lines %1 to %2: %3.</translation>
    </message>
    <message>
        <source>L&apos;elenco continua fino alla riga %1.</source>
        <translation>The list goes on to line %1.</translation>
    </message>
</context>
<context>
    <name>Serata</name>
    <message>
        <source>Quintra - Serata</source>
        <translation>Quintra - Bingo night</translation>
    </message>
    <message>
        <source>L&apos;ultimo numero chiamato</source>
        <translation>The last number called</translation>
    </message>
    <message>
        <source>I numeri chiamati prima</source>
        <translation>The numbers called before</translation>
    </message>
    <message>
        <source>Un clic chiama un numero, un altro lo toglie</source>
        <translation>A click calls a number, another takes it back</translation>
    </message>
    <message>
        <source>Tabellone</source>
        <translation>Board</translation>
    </message>
    <message>
        <source>Chiamata</source>
        <translation>Call</translation>
    </message>
    <message>
        <source>Numero</source>
        <translation>Number</translation>
    </message>
    <message>
        <source>Il numero da chiamare; se è già stato chiamato viene tolto</source>
        <translation>The number to call; one already called is taken back</translation>
    </message>
    <message>
        <source>Chiama a caso uno dei numeri rimasti</source>
        <translation>Call one of the remaining numbers at random</translation>
    </message>
    <message>
        <source>Estrai</source>
        <translation>Draw</translation>
    </message>
    <message>
        <source>Controllo di una scheda</source>
        <translation>Checking a card</translation>
    </message>
    <message>
        <source>Scheda</source>
        <translation>Card</translation>
    </message>
    <message>
        <source>Pagina e scheda, per esempio 12.3</source>
        <translation>Page and card, for example 12.3</translation>
    </message>
    <message>
        <source>Mostra la scheda con i numeri chiamati</source>
        <translation>Show the card with the numbers called</translation>
    </message>
    <message>
        <source>Controlla</source>
        <translation>Check</translation>
    </message>
    <message>
        <source>Che cosa ha la scheda, e con quale chiamata</source>
        <translation>What the card has won, and with which call</translation>
    </message>
    <message>
        <source>Vincite</source>
        <translation>Wins</translation>
    </message>
    <message>
        <source>Schede</source>
        <translation>Cards</translation>
    </message>
    <message>
        <source>Le schede con tutti i numeri chiamati</source>
        <translation>The cards with all numbers called</translation>
    </message>
    <message>
        <source>Le schede a cui manca un solo numero</source>
        <translation>The cards that need only one number</translation>
    </message>
    <message>
        <source>Chiama un numero</source>
        <translation>Call a number</translation>
    </message>
    <message>
        <source>Controlla una scheda</source>
        <translation>Check a card</translation>
    </message>
    <message>
        <source>Nuova partita...</source>
        <translation>New game...</translation>
    </message>
    <message>
        <source>Toglie tutti i numeri chiamati e ricomincia</source>
        <translation>Take back all called numbers and begin again</translation>
    </message>
    <message>
        <source>Apri registro...</source>
        <translation>Open register...</translation>
    </message>
    <message>
        <source>Apre un registro</source>
        <translation>Open a register</translation>
    </message>
    <message>
        <source>Schermo intero</source>
        <translation>Full screen</translation>
    </message>
    <message>
        <source>Chiudi</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>immagine</source>
        <translation>picture</translation>
    </message>
    <message>
        <source>%1: chiamata %2, numero %3</source>
        <translation>%1: call %2, number %3</translation>
    </message>
    <message>
        <source>Nessuna vincita</source>
        <translation>No win</translation>
    </message>
    <message>
        <source>La partita non si può cominciare.</source>
        <translation>The game cannot start.</translation>
    </message>
    <message>
        <source>Nuova partita, numeri da %1 a %2.</source>
        <translation>New game, numbers from %1 to %2.</translation>
    </message>
    <message>
        <source>Il numero %1 non è in gioco: i numeri vanno da %2 a %3!</source>
        <translation>Number %1 is not in play: the numbers go from %2 to %3!</translation>
    </message>
    <message>
        <source>La chiamata non si può salvare, nulla è cambiato.</source>
        <translation>The call cannot be saved; nothing has changed.</translation>
    </message>
    <message>
        <source>Chiamato il %1.</source>
        <translation>Called: %1.</translation>
    </message>
    <message>
        <source>Tolto il %1.</source>
        <translation>Taken back: %1.</translation>
    </message>
    <message>
        <source>Tutti i numeri sono stati chiamati!</source>
        <translation>All numbers have been called!</translation>
    </message>
    <message>
        <source>Scrivere un numero da %1 a %2!</source>
        <translation>Type a number from %1 to %2!</translation>
    </message>
    <message>
        <source>Scrivere la pagina e la scheda, per esempio 12.3!</source>
        <translation>Type page and card, for example 12.3!</translation>
    </message>
    <message>
        <source>La scheda %1 non esiste!</source>
        <translation>There is no card %1!</translation>
    </message>
    <message>
        <source>Scheda %1.</source>
        <translation>Card %1.</translation>
    </message>
    <message>
        <source>Numeri chiamati: %1 di %2</source>
        <translation>Numbers called: %1 of %2</translation>
    </message>
    <message>
        <source>In attesa di un numero: %1</source>
        <translation>One to go: %1</translation>
    </message>
    <message>
        <source>Nessuna scheda</source>
        <translation>No card</translation>
    </message>
    <message>
        <source>Scheda %1</source>
        <translation>Card %1</translation>
    </message>
    <message>
        <source>La serata di prima non si può mettere da parte.</source>
        <translation>The earlier bingo night cannot be put aside.</translation>
    </message>
    <message>
        <source>In %1 c&apos;è una serata con altre schede (numeri chiamati: %2).

Continuare quella? Con No ne comincia una nuova, e quella viene messa da parte.</source>
        <translation>There is a bingo night with other cards (numbers called: %2) in %1.

Continue that one? With No a new one begins, and the old one is put aside.</translation>
    </message>
    <message>
        <source>La serata non si può salvare in %1.</source>
        <translation>The bingo night cannot be saved in %1.</translation>
    </message>
    <message>
        <source>Dove salvare la serata</source>
        <translation>Where to save the bingo night</translation>
    </message>
    <message>
        <source>Il registro non si può leggere.</source>
        <translation>The register cannot be read.</translation>
    </message>
    <message>
        <source>Il registro non contiene schede.</source>
        <translation>The register contains no cards.</translation>
    </message>
    <message>
        <source>La serata non si può salvare accanto al registro.</source>
        <translation>The bingo night cannot be saved beside the register.</translation>
    </message>
    <message>
        <source>La serata non può continuare.</source>
        <translation>The bingo night cannot go on.</translation>
    </message>
    <message>
        <source>Schede: %1. Numeri da %2 a %3. Chiamati: %4.</source>
        <translation>Cards: %1. Numbers from %2 to %3. Called: %4.</translation>
    </message>
    <message>
        <source>Questo registro è già aperto.</source>
        <translation>This register is already open.</translation>
    </message>
    <message>
        <source>&amp;Partita</source>
        <translation>&amp;Game</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;Visualizza</source>
        <translation>&amp;View</translation>
    </message>
    <message>
        <source>Righe illeggibili nel file delle chiamate: %1!</source>
        <translation>Unreadable lines in the file of calls: %1!</translation>
    </message>
    <message>
        <source>Tombola: %1</source>
        <translation>Full house: %1</translation>
    </message>
    <message>
        <source>Il file delle chiamate non si può leggere.</source>
        <translation>The file of calls cannot be read.</translation>
    </message>
    <message>
        <source>Le chiamate di prima sono illeggibili e sono state messe da parte:
%1</source>
        <translation>The calls made before cannot be read and were put aside:
%1</translation>
    </message>
    <message>
        <source>Non è un file.</source>
        <translation>It is not a file.</translation>
    </message>
    <message>
        <source>Il registro non si può leggere fino in fondo. Schede lette: %1.</source>
        <translation>The register cannot be read to its end. Cards read: %1.</translation>
    </message>
    <message>
        <source>&amp;Aiuto</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>Manuale</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>Come si usa il programma, passo per passo</source>
        <translation>How to use the program, step by step</translation>
    </message>
</context>
<context>
    <name>SpokenContent</name>
    <message>
        <source>numero</source>
        <translation>number</translation>
    </message>
    <message>
        <source>numero %1</source>
        <translation>number %1</translation>
    </message>
    <message>
        <source>testo</source>
        <translation>text</translation>
    </message>
    <message>
        <source>testo %1</source>
        <translation>text %1</translation>
    </message>
    <message>
        <source>immagine</source>
        <translation>picture</translation>
    </message>
    <message>
        <source>vuota</source>
        <translation>empty</translation>
    </message>
</context>
<context>
    <name>TabelloneModel</name>
    <message>
        <source>nessun numero</source>
        <translation>no number</translation>
    </message>
</context>
</TS>
