<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_GB" sourcelanguage="it_IT">
<context>
    <name>Cartella</name>
    <message>
        <source>Pag %1 blocco %2 = Pag %3 blocco %4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blocchi verificati: %1
Confronti tra blocchi: %2
Celle verificate: %3
Blocchi uguali: %4 (%5%)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>La cartella e&apos; vuota od ha solo una pagina.
I blocchi di una pagina sono sempre diversi.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Confronto pagina %1 di %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>numero</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>testo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>immagine</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>vuota</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CreateOutputFile</name>
    <message>
        <source>Formato file sconosciuto!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Formato %1 non disponibile. Creazione annullata.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Impossibile scrivere sul file!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PDF: Stampa pagina %1 di %2 (%3%) in corso...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Impossibile continuare a scrivere sul file!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stampa PDF completata!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File creato con successo!

Nome: %1
Percorso: %2

Pagine: %3
Dimensione: %4 Bytes (%5 MB)
----------------------------------------

Dimensioni pagina: %6</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EditPersonale</name>
    <message>
        <source>Pagina</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>La pagina mostrata</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>di</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Il numero di pagine</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>I numeri di questa pagina sono estratti colonna per colonna, ognuna dal proprio intervallo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ordina numeri sulle colonne</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selezione</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>La selezione comprende tutte le celle della pagina</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tutte</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Riga</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>da</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Prima riga della selezione</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ultima riga della selezione</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colonna</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Prima colonna della selezione</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ultima colonna della selezione</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Spunta le celle della selezione</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Riempi</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Toglie la spunta alle celle della selezione</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Svuota</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Inverte la spunta delle celle della selezione</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Inverti</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tipo delle celle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Celle con un numero</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Numero</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Celle con un testo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Testo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Celle con un&apos;immagine</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Immagine</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Imposta il tipo delle celle selezionate sopra!&lt;/p&gt;&lt;p&gt;Per cambiare le singole celle usare il tasto destro del mouse su di esse.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Imposta selezionate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Schema corrente</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>da pag.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Prima pagina su cui copiare lo schema</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ultima pagina su cui copiare lo schema</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copia lo schema su tutte le pagine</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>tutte</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copia lo schema della pagina mostrata sulle pagine indicate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copia</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Crea le pagine e le aggiunge alla cartella</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Crea pagine</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nuovo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Per iniziare una nuova mappatura chiudere questa finestra e riaprirla dalla finestra principale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apri</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apre uno schema di pagine da file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Salva</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Salva lo schema delle pagine su file. Una pagina con più di 255 celle non può essere riletta per intero e l&apos;ordine dei numeri sulle colonne non viene salvato.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Esci</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chiude la mappatura manuale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mappatura manuale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Non vi sono pagine da creare!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MAPPATURA MANUALE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tipo cambiato in: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>I numeri da generare (%1) sono maggiori di quelli disponibili (%2).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Impostazioni corrette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Le pagine selezionate verranno sovrascritte con lo schema corrente. Proseguire?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copia schema effettuata!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pagine create e aggiunte alla cartella principale!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Errore durante la creazione delle pagine!

%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sei sicuro di voler chiudere?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Salva le cartelle su file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Creazione file annullata!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pagina %1 di %2 salvata</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File creato con successo!

Nome: %1
Estensione: %2
Percorso: %3

Pagine: %4
Dimensione: %5 Bytes (%6 MB)
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Aprendo un nuovo progetto tutto il lavoro in corso di modifica sarà perso. Proseguire?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apre un file di cartelle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apertura file annullata!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sto leggendo la pagina %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apertura completata!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sto caricando la pagina %1 di %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FormatSelection</name>
    <message>
        <source>Dialog</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Seleziona la lingua:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lingua del programma e dei commenti nelle impostazioni</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Impostazioni di default: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Impostazioni di default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Generatore di cartelle per la Quintra.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Numeri - Minimo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Numeri - Massimo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Classica - Numero blocchi</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Classica - Numero righe per blocco</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Classica - Numero estrazioni per riga</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Classica - Numero colonne</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Classica - Numero jolly per riga</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Testo di base nelle celle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Immagine di base nelle celle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Directory di base dove salvare</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lingua di default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Configurazione</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Impossibile commentare il file, formato errato!</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GeneraCartellaPersonale</name>
    <message>
        <source>Nessuna pagina da generare!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nessun numero generato!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Genera per colonne:
Impossibile generare %1 numeri sulla colonna n^ %2
La colonna vorrebbe %3 numeri diversi tra %4 e %5
ma cio&apos; risulta impossibile in quanto il range e&apos; composto da %6 numeri.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Generazione numeri:
Errore durante l&apos;aggiunta della pagina %i.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>MainWindow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cartella</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Numero di pagine</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Numero totale di pagine (cartelle)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Numero di blocchi per pagina</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Numero di righe per blocco</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Numero di colonne</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Numero di celle (colonne) per riga</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Celle di ogni riga</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Numero di estrazioni per riga</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Numero di celle da riempire (numeri,immagini,scritte) in ogni riga</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Numero di immagini per riga</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Inserisci delle immagini al posto dei numeri nelle celle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Numero di scritte per riga</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Inserisci del testo al posto dei numeri nelle celle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Numeri da estrarre</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Numero minimo da estrarre</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Numero massimo da estrarre</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disegna a mano quali celle riempire, pagina per pagina</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mappatura manuale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Crea le pagine richieste e le aggiunge alla cartella</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Aggiungi pagine</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+Shift+N</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stampa la cartella su file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>STAMPA</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+P</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pagina</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pagina visualizzata</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>di</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Numero di pagine della cartella</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Elimina la pagina visualizzata</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Elimina</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Formato</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Formato della carta su cui stampare</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Spazio tra i blocchi (mm)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Spazio tra i blocchi della pagina, in millimetri</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>I comandi di pagina e di blocco agiscono su tutte le pagine</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Applica a tutte</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Imposta lo spazio tra i blocchi</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Applica</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colori</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colore di sfondo della pagina</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colora sfondo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blocco</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blocco selezionato</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blocchi della pagina</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Spessore linea esterna</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Spessore della linea esterna del blocco (non ha ancora effetto)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Spessore linea interna</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Spessore delle linee interne del blocco (non ha ancora effetto)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>I comandi di blocco agiscono su tutti i blocchi</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Applica a tutti</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Applica le impostazioni del blocco (non ha ancora effetto)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colore di sfondo delle celle del blocco</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colore della linea esterna del blocco (non ha ancora effetto)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colora linea esterna</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colore delle linee interne del blocco (non ha ancora effetto)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colora linea interna</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cella</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Riga</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Riga della cella nel suo blocco</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colonna</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colonna della cella</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tipo della cella</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Carattere delle celle selezionate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Carattere...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Carattere della cella</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sceglie l&apos;immagine della cella selezionata</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Seleziona immagine...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>I comandi di cella agiscono sulle stesse celle di tutte le pagine</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Applica le impostazioni della cella (non ha ancora effetto)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colore del testo delle celle selezionate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colora testo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colore di sfondo delle celle selezionate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Strumenti</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Aiuto</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pulisci</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apri</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Le mappature si aprono dall&apos;editor della mappatura manuale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+O</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Salva</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Le mappature si salvano dall&apos;editor della mappatura manuale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+S</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nuova</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Crea una nuova cartella</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+N</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Esci</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Esce dal programma</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Confronta blocchi</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Verifica che non vi siano blocchi uguali</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+B</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opzioni</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Impostazioni del programma</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+,</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Informazioni</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Informazioni sul programma</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Welcome to %1 %2!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>La cartella non contiene pagine!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Aggiungere pagine alla cartella prima di proseguire.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Creazione file annullata!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Errore nella creazione del file:
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Salva le cartelle su file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cartella classica</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sei sicuro di voler uscire?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Generatore di cartelle per la Quintra.
Advanced Bingo cards generator.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Modifica valori</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Errore durante la modifica del valore nella tabella.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Problema durante la modifica del valore nella tabella.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vuoi impostare il valore come STRINGA?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vuoi impostare il valore come CELLA VUOTA?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cella impostata come IMMAGINE.
Il percorso dell&apos;immagine deve essere scelto tramite il pannello a lato.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>L&apos;immagine per la cella selezionata è quella visibile. La si vuole Cambiare?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apre un&apos;immagine da inserire nella cella</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>JPEG (*.jpg *.jpeg);; TIFF (*.tif);; PNG (*.png);; GIF (*.gif);; BITMAP (*.bmp)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>L&apos;immagine per la cella selezionata è quella visisbile. Proseguire?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Immagine impostata correttamente.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selezione immagine cella</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sei sicuro di voler cancellare la cartella e crearne una nuova?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Creazione annullata.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cartella di %1 pagine, %2 blocchi %3X%4 generata</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Problemi di impostazione parametri: non posso proseguire!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1

Vuoi proseguire comunque?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sto cancellando la precedente cartella...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sto creando una cartella di %1 pagine, %2 blocchi %3X%4...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Generazione numeri:
Errore durante l&apos;aggiunta della pagina %i.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sono state create solo pagine vuote!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Generazione numeri:
Errore durante la generazione della pagina %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sto creando l&apos;ambiente per la mappatura manuale, attendere...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ambiente per la mappatura manuale creato.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Celle della pagina</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>La cartella non contiene la pagina da visualizzare (fuori range)!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cartella vuota!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>La cartella è vuota!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Problema nell&apos;eliminazione della pagina!
Pagina non eliminata.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pagina eliminata correttamente.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nessuna selezione</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cella mancante</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cella selezionata</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selezione multipla</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Impostazioni corrette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Estrazioni per riga: Per un corretto funzionamento si consiglia il valore 5.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nessun elemento selezionato!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Modifica colore sfondo blocchi applicata.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Modifica colore testo cella applicata.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Modifica colore sfondo cella applicata.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Errore: Le pagine hanno dimensioni diverse.
Alcune celle sono state omesse!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Modifica applicata.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Font impostato correttamente.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Verifica blocchi uguali:
Pagine cartella non ancora generate.
Impossibile procedere alla verifica!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Non vi sono blocchi uguali!

%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vi sono %1 blocchi uguali!

%2

Vuoi visualizzarli?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>... e altre %1 coppie di blocchi uguali.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MappingFile</name>
    <message>
        <source>riga vuota</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>il primo carattere non indica il numero di righe della pagina</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>troppo corta per le celle della pagina</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>oltre il massimo di %1 pagine</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Queste righe del file non descrivono una pagina e sono state saltate:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Riga %1: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Righe da %1 a %2: %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>L&apos;elenco continua fino alla riga %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MsgArea</name>
    <message>
        <source>Area messaggi</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Salva</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Esci</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Testo modificato</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vuoi uscire senza salvare?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Salva su file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File salvato con successo.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Errore nel salvataggio del file!</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Options</name>
    <message>
        <source>Impostazioni</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Consente di ri-selezionare le opzioni al primo avvio del programma</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Impostazioni iniziali (per il prossimo avvio)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Azzera ed esci</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Azzera e continua</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Modifica le impostazioni direttamente</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Modifica diretta</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opzioni</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Problema durante la cancellazione del file:
 %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File di configurazione eliminato correttamente.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Proseguire con la cancellazionede del file di configurazione e l&apos;uscita dal programma?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Proseguire con la cancellazionede del file di configurazione?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ParameterRules</name>
    <message>
        <source>Non posso creare %1 celle piene con solo %2 numeri.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Non posso inserire %1 jolly in sole %2 colonne.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Non posso inserire %1 scritte in sole %2 colonne.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Non posso inserire %1 scritte e immagini in sole %2 colonne.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Non posso inserire %1 jolly con sole %2 estrazioni.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Non posso inserire %1 scritte con sole %2 estrazioni.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Non posso inserire %1 scritte e immagini con sole %2 estrazioni.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Non posso inserire %1 numeri in sole %2 colonne.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Le pagine totali richieste (%1)
eccedono il massimo consentito (%2).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Si sconsiglia di proseguire per le seguenti ragioni:
%1 -&gt; caselle totali richieste.
%2 -&gt; caselle totali in memoria.
%3 -&gt; caselle massime gestibili.
(eventuale crash del programma)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PersonaleChkBox</name>
    <message>
        <source>Numero</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Testo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Immagine</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vuota</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
