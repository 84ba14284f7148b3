<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="it_IT">
<context>
    <name>Cartella</name>
    <message>
        <source>Pag %1 blocco %2 = Pag %3 blocco %4</source>
        <translation>Pag %1 blocco %2 = Pag %3 blocco %4</translation>
    </message>
    <message>
        <source>Blocchi verificati: %1
Confronti tra blocchi: %2
Celle verificate: %3
Blocchi uguali: %4 (%5%)</source>
        <translation>Blocchi verificati: %1
Confronti tra blocchi: %2
Celle verificate: %3
Blocchi uguali: %4 (%5%)</translation>
    </message>
    <message>
        <source>La cartella e&apos; vuota od ha solo una pagina.
I blocchi di una pagina sono sempre diversi.</source>
        <translation>La cartella e&apos; vuota od ha solo una pagina.
I blocchi di una pagina sono sempre diversi.</translation>
    </message>
    <message>
        <source>Confronto pagina %1 di %2</source>
        <translation>Confronto pagina %1 di %2</translation>
    </message>
    <message>
        <source>numero</source>
        <translation>numero</translation>
    </message>
    <message>
        <source>testo</source>
        <translation>testo</translation>
    </message>
    <message>
        <source>immagine</source>
        <translation>immagine</translation>
    </message>
    <message>
        <source>vuota</source>
        <translation>vuota</translation>
    </message>
</context>
<context>
    <name>CasellaAccessibile</name>
    <message>
        <source>riga %1, colonna %2, %3, %4</source>
        <translation>riga %1, colonna %2, %3, %4</translation>
    </message>
    <message>
        <source>spuntata</source>
        <translation>spuntata</translation>
    </message>
    <message>
        <source>non spuntata</source>
        <translation>non spuntata</translation>
    </message>
</context>
<context>
    <name>CaselleDelegate</name>
    <message>
        <source>%1, chiamato</source>
        <translation>%1, chiamato</translation>
    </message>
    <message>
        <source>%1, non chiamato</source>
        <translation>%1, non chiamato</translation>
    </message>
</context>
<context>
    <name>CreateOutputFile</name>
    <message>
        <source>Formato file sconosciuto!</source>
        <translation>Formato file sconosciuto!</translation>
    </message>
    <message>
        <source>Formato %1 non disponibile. Creazione annullata.</source>
        <translation>Formato %1 non disponibile. Creazione annullata.</translation>
    </message>
    <message>
        <source>Impossibile scrivere sul file!</source>
        <translation>Impossibile scrivere sul file!</translation>
    </message>
    <message>
        <source>PDF: Stampa pagina %1 di %2 (%3%) in corso...</source>
        <translation>PDF: Stampa pagina %1 di %2 (%3%) in corso...</translation>
    </message>
    <message>
        <source>Impossibile continuare a scrivere sul file!</source>
        <translation>Impossibile continuare a scrivere sul file!</translation>
    </message>
    <message>
        <source>Stampa PDF completata!</source>
        <translation>Stampa PDF completata!</translation>
    </message>
    <message>
        <source>File creato con successo!

Nome: %1
Percorso: %2

Pagine: %3
Dimensione: %4 Bytes (%5 MB)
----------------------------------------

Dimensioni pagina: %6</source>
        <translation>File creato con successo!

Nome: %1
Percorso: %2

Pagine: %3
Dimensione: %4 Bytes (%5 MB)
----------------------------------------

Dimensioni pagina: %6</translation>
    </message>
</context>
<context>
    <name>Diario</name>
    <message>
        <source>La serata è già aperta in un&apos;altra finestra.</source>
        <translation>La serata è già aperta in un&apos;altra finestra.</translation>
    </message>
    <message>
        <source>Non è un file.</source>
        <translation>Non è un file.</translation>
    </message>
</context>
<context>
    <name>EditPersonale</name>
    <message>
        <source>Pagina</source>
        <translation>Pagina</translation>
    </message>
    <message>
        <source>La pagina mostrata</source>
        <translation>La pagina mostrata</translation>
    </message>
    <message>
        <source>di</source>
        <translation>di</translation>
    </message>
    <message>
        <source>Il numero di pagine</source>
        <translation>Il numero di pagine</translation>
    </message>
    <message>
        <source>I numeri di questa pagina sono estratti colonna per colonna, ciascuna con il proprio intervallo</source>
        <translation>I numeri di questa pagina sono estratti colonna per colonna, ciascuna con il proprio intervallo</translation>
    </message>
    <message>
        <source>Ordina numeri sulle colonne</source>
        <translation>Ordina numeri sulle colonne</translation>
    </message>
    <message>
        <source>Selezione</source>
        <translation>Selezione</translation>
    </message>
    <message>
        <source>La selezione comprende tutte le celle della pagina</source>
        <translation>La selezione comprende tutte le celle della pagina</translation>
    </message>
    <message>
        <source>Tutte</source>
        <translation>Tutte</translation>
    </message>
    <message>
        <source>Riga</source>
        <translation>Riga</translation>
    </message>
    <message>
        <source>da</source>
        <translation>da</translation>
    </message>
    <message>
        <source>Prima riga della selezione</source>
        <translation>Prima riga della selezione</translation>
    </message>
    <message>
        <source>a</source>
        <translation>a</translation>
    </message>
    <message>
        <source>Ultima riga della selezione</source>
        <translation>Ultima riga della selezione</translation>
    </message>
    <message>
        <source>Colonna</source>
        <translation>Colonna</translation>
    </message>
    <message>
        <source>Prima colonna della selezione</source>
        <translation>Prima colonna della selezione</translation>
    </message>
    <message>
        <source>Ultima colonna della selezione</source>
        <translation>Ultima colonna della selezione</translation>
    </message>
    <message>
        <source>Spunta le celle della selezione</source>
        <translation>Spunta le celle della selezione</translation>
    </message>
    <message>
        <source>Riempi</source>
        <translation>Riempi</translation>
    </message>
    <message>
        <source>Toglie la spunta dalle celle della selezione</source>
        <translation>Toglie la spunta dalle celle della selezione</translation>
    </message>
    <message>
        <source>Svuota</source>
        <translation>Svuota</translation>
    </message>
    <message>
        <source>Inverte la spunta delle celle della selezione</source>
        <translation>Inverte la spunta delle celle della selezione</translation>
    </message>
    <message>
        <source>Inverti</source>
        <translation>Inverti</translation>
    </message>
    <message>
        <source>Tipo delle celle</source>
        <translation>Tipo delle celle</translation>
    </message>
    <message>
        <source>Celle con un numero</source>
        <translation>Celle con un numero</translation>
    </message>
    <message>
        <source>Numero</source>
        <translation>Numero</translation>
    </message>
    <message>
        <source>Celle con un testo</source>
        <translation>Celle con un testo</translation>
    </message>
    <message>
        <source>Testo</source>
        <translation>Testo</translation>
    </message>
    <message>
        <source>Celle con un&apos;immagine</source>
        <translation>Celle con un&apos;immagine</translation>
    </message>
    <message>
        <source>Immagine</source>
        <translation>Immagine</translation>
    </message>
    <message>
        <source>&lt;p&gt;Imposta il tipo delle celle selezionate sopra!&lt;/p&gt;&lt;p&gt;Per cambiare le singole celle usare il tasto destro del mouse su di esse.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Imposta il tipo delle celle selezionate sopra!&lt;/p&gt;&lt;p&gt;Per cambiare le singole celle usare il tasto destro del mouse su di esse.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Imposta selezionate</source>
        <translation>Imposta selezionate</translation>
    </message>
    <message>
        <source>Schema corrente</source>
        <translation>Schema corrente</translation>
    </message>
    <message>
        <source>da pag.</source>
        <translation>da pag.</translation>
    </message>
    <message>
        <source>Prima pagina su cui copiare lo schema</source>
        <translation>Prima pagina su cui copiare lo schema</translation>
    </message>
    <message>
        <source>Ultima pagina su cui copiare lo schema</source>
        <translation>Ultima pagina su cui copiare lo schema</translation>
    </message>
    <message>
        <source>Copia lo schema su tutte le pagine</source>
        <translation>Copia lo schema su tutte le pagine</translation>
    </message>
    <message>
        <source>tutte</source>
        <translation>tutte</translation>
    </message>
    <message>
        <source>Copia lo schema della pagina mostrata sulle pagine indicate</source>
        <translation>Copia lo schema della pagina mostrata sulle pagine indicate</translation>
    </message>
    <message>
        <source>Copia</source>
        <translation>Copia</translation>
    </message>
    <message>
        <source>Crea le pagine e le aggiunge alla cartella</source>
        <translation>Crea le pagine e le aggiunge alla cartella</translation>
    </message>
    <message>
        <source>Crea pagine</source>
        <translation>Crea pagine</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Nuovo</source>
        <translation>Nuovo</translation>
    </message>
    <message>
        <source>Per iniziare una nuova mappatura chiudere questa finestra e riaprirla dalla finestra principale</source>
        <translation>Per iniziare una nuova mappatura chiudere questa finestra e riaprirla dalla finestra principale</translation>
    </message>
    <message>
        <source>Apri</source>
        <translation>Apri</translation>
    </message>
    <message>
        <source>Apre uno schema di pagine da file</source>
        <translation>Apre uno schema di pagine da file</translation>
    </message>
    <message>
        <source>Salva</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>&lt;p&gt;Salva lo schema delle pagine su file. Una pagina con più di 255 celle non può essere riletta per intero e l&apos;opzione &quot;Ordina numeri sulle colonne&quot; non viene salvata.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Salva lo schema delle pagine su file. Una pagina con più di 255 celle non può essere riletta per intero e l&apos;opzione &quot;Ordina numeri sulle colonne&quot; non viene salvata.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Esci</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>Chiude la mappatura manuale</source>
        <translation>Chiude la mappatura manuale</translation>
    </message>
    <message>
        <source>Mappatura manuale</source>
        <translation>Mappatura manuale</translation>
    </message>
    <message>
        <source>Non vi sono pagine da creare!</source>
        <translation>Non vi sono pagine da creare!</translation>
    </message>
    <message>
        <source>MAPPATURA MANUALE</source>
        <translation>MAPPATURA MANUALE</translation>
    </message>
    <message>
        <source>Tipo cambiato in: %1</source>
        <translation>Tipo cambiato in: %1</translation>
    </message>
    <message>
        <source>I numeri da generare (%1) sono maggiori di quelli disponibili (%2).</source>
        <translation>I numeri da generare (%1) sono maggiori di quelli disponibili (%2).</translation>
    </message>
    <message>
        <source>Impostazioni corrette</source>
        <translation>Impostazioni corrette</translation>
    </message>
    <message>
        <source>Le pagine selezionate verranno sovrascritte con lo schema corrente. Proseguire?</source>
        <translation>Le pagine selezionate verranno sovrascritte con lo schema corrente. Proseguire?</translation>
    </message>
    <message>
        <source>Copia schema effettuata!</source>
        <translation>Copia schema effettuata!</translation>
    </message>
    <message>
        <source>Pagine create e aggiunte alla cartella principale!</source>
        <translation>Pagine create e aggiunte alla cartella principale!</translation>
    </message>
    <message>
        <source>Errore durante la creazione delle pagine!

%1</source>
        <translation>Errore durante la creazione delle pagine!

%1</translation>
    </message>
    <message>
        <source>Sei sicuro di voler chiudere?</source>
        <translation>Sei sicuro di voler chiudere?</translation>
    </message>
    <message>
        <source>Salva le cartelle su file</source>
        <translation>Salva le cartelle su file</translation>
    </message>
    <message>
        <source>Creazione file annullata!</source>
        <translation>Creazione file annullata!</translation>
    </message>
    <message>
        <source>Pagina %1 di %2 salvata</source>
        <translation>Pagina %1 di %2 salvata</translation>
    </message>
    <message>
        <source>File creato con successo!

Nome: %1
Estensione: %2
Percorso: %3

Pagine: %4
Dimensione: %5 Bytes (%6 MB)
</source>
        <translation>File creato con successo!

Nome: %1
Estensione: %2
Percorso: %3

Pagine: %4
Dimensione: %5 Bytes (%6 MB)
</translation>
    </message>
    <message>
        <source>Aprendo un nuovo progetto tutto il lavoro in corso di modifica sarà perso. Proseguire?</source>
        <translation>Aprendo un nuovo progetto tutto il lavoro in corso di modifica sarà perso. Proseguire?</translation>
    </message>
    <message>
        <source>Apre un file di cartelle</source>
        <translation>Apre un file di cartelle</translation>
    </message>
    <message>
        <source>Apertura file annullata!</source>
        <translation>Apertura file annullata!</translation>
    </message>
    <message>
        <source>Sto leggendo la pagina %1</source>
        <translation>Sto leggendo la pagina %1</translation>
    </message>
    <message>
        <source>Apertura completata!</source>
        <translation>Apertura completata!</translation>
    </message>
    <message>
        <source>Sto caricando la pagina %1 di %2</source>
        <translation>Sto caricando la pagina %1 di %2</translation>
    </message>
    <message>
        <source>Salva lo schema delle pagine su file</source>
        <translation>Salva lo schema delle pagine su file</translation>
    </message>
    <message>
        <source>Errore nel salvataggio del file:
%1

%2</source>
        <translation>Errore nel salvataggio del file:
%1

%2</translation>
    </message>
    <message>
        <source>Non è un file di cartelle:
%1</source>
        <translation>Non è un file di cartelle:
%1</translation>
    </message>
    <message>
        <source>Errore nella lettura del file:
%1

%2</source>
        <translation>Errore nella lettura del file:
%1

%2</translation>
    </message>
    <message>
        <source>Nessuna riga del file descrive una pagina.</source>
        <translation>Nessuna riga del file descrive una pagina.</translation>
    </message>
    <message>
        <source>Non vi sono pagine.
%1</source>
        <translation>Non vi sono pagine.
%1</translation>
    </message>
    <message>
        <source>Le pagine con troppe celle non saranno rilette per intero dal file.
Pagine: %1</source>
        <translation>Le pagine con troppe celle non saranno rilette per intero dal file.
Pagine: %1</translation>
    </message>
    <message>
        <source>&lt;p&gt;I numeri spuntati e quelli disponibili. Cambiando pagina il conteggio prosegue da quello di prima, finché non si cambia un tipo o si copia uno schema.&lt;/p&gt;</source>
        <translation>&lt;p&gt;I numeri spuntati e quelli disponibili. Cambiando pagina il conteggio prosegue da quello di prima, finché non si cambia un tipo o si copia uno schema.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;Un clic o la barra spaziatrice mette o toglie la spunta; trascinando il mouse con il tasto sinistro premuto si spuntano le celle attraversate.&lt;/p&gt;&lt;p&gt;Il tasto destro del mouse o il tasto T passa al tipo successivo, tranne che nelle pagine lette da un file.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Un clic o la barra spaziatrice mette o toglie la spunta; trascinando il mouse con il tasto sinistro premuto si spuntano le celle attraversate.&lt;/p&gt;&lt;p&gt;Il tasto destro del mouse o il tasto T passa al tipo successivo, tranne che nelle pagine lette da un file.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Numeri: %1 di %2</source>
        <translation>Numeri: %1 di %2</translation>
    </message>
    <message>
        <source>Le pagine totali richieste (%1)
eccedono il massimo consentito (%2).</source>
        <translation>Le pagine totali richieste (%1)
eccedono il massimo consentito (%2).</translation>
    </message>
    <message>
        <source>Aiuto</source>
        <translation>Aiuto</translation>
    </message>
    <message>
        <source>Manuale</source>
        <translation>Manuale</translation>
    </message>
    <message>
        <source>Come si usa il programma, passo per passo</source>
        <translation>Come si usa il programma, passo per passo</translation>
    </message>
    <message>
        <source>Copia schema annullata!</source>
        <translation>Copia schema annullata!</translation>
    </message>
</context>
<context>
    <name>ElencoSchede</name>
    <message>
        <source>%1: chiamata %2</source>
        <translation>%1: chiamata %2</translation>
    </message>
    <message>
        <source>%1: manca il %2</source>
        <translation>%1: manca il %2</translation>
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
        <translation>Seleziona la lingua:</translation>
    </message>
    <message>
        <source>&lt;p&gt;Lingua del programma fino alla chiusura e dei commenti nelle impostazioni; ai prossimi avvii vale la lingua del sistema&lt;/p&gt;</source>
        <translation>&lt;p&gt;Lingua del programma fino alla chiusura e dei commenti nelle impostazioni; ai prossimi avvii vale la lingua del sistema&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Impostazioni di default: </source>
        <translation>Impostazioni di default: </translation>
    </message>
    <message>
        <source>Impostazioni di default</source>
        <translation>Impostazioni di default</translation>
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
        <translation>Generatore di cartelle per la Quintra.</translation>
    </message>
    <message>
        <source>Numeri - Minimo</source>
        <translation>Numeri - Minimo</translation>
    </message>
    <message>
        <source>Numeri - Massimo</source>
        <translation>Numeri - Massimo</translation>
    </message>
    <message>
        <source>Classica - Numero blocchi</source>
        <translation>Classica - Numero blocchi</translation>
    </message>
    <message>
        <source>Classica - Numero righe per blocco</source>
        <translation>Classica - Numero righe per blocco</translation>
    </message>
    <message>
        <source>Classica - Numero estrazioni per riga</source>
        <translation>Classica - Numero estrazioni per riga</translation>
    </message>
    <message>
        <source>Classica - Numero colonne</source>
        <translation>Classica - Numero colonne</translation>
    </message>
    <message>
        <source>Classica - Numero jolly per riga</source>
        <translation>Classica - Numero jolly per riga</translation>
    </message>
    <message>
        <source>Testo di base nelle celle</source>
        <translation>Testo di base nelle celle</translation>
    </message>
    <message>
        <source>Immagine di base nelle celle</source>
        <translation>Immagine di base nelle celle</translation>
    </message>
    <message>
        <source>Directory di base dove salvare</source>
        <translation>Directory di base dove salvare</translation>
    </message>
    <message>
        <source>Lingua di default</source>
        <translation>Lingua di default</translation>
    </message>
    <message>
        <source>Configurazione</source>
        <translation>Configurazione</translation>
    </message>
    <message>
        <source>Impossibile commentare il file, formato errato!</source>
        <translation>Impossibile commentare il file, formato errato!</translation>
    </message>
    <message>
        <source>Continua con queste impostazioni</source>
        <translation>Continua con queste impostazioni</translation>
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
        <translation>Nessuna pagina da generare!</translation>
    </message>
    <message>
        <source>Nessun numero generato!</source>
        <translation>Nessun numero generato!</translation>
    </message>
    <message>
        <source>Genera per colonne:
Impossibile generare %1 numeri sulla colonna n^ %2
La colonna vorrebbe %3 numeri diversi tra %4 e %5
ma cio&apos; risulta impossibile in quanto il range e&apos; composto da %6 numeri.</source>
        <translation>Genera per colonne:
Impossibile generare %1 numeri sulla colonna n^ %2
La colonna vorrebbe %3 numeri diversi tra %4 e %5
ma cio&apos; risulta impossibile in quanto il range e&apos; composto da %6 numeri.</translation>
    </message>
    <message>
        <source>Generazione numeri:
Errore durante l&apos;aggiunta della pagina %i.</source>
        <translation>Generazione numeri:
Errore durante l&apos;aggiunta della pagina %i.</translation>
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
        <translation>Cartella</translation>
    </message>
    <message>
        <source>Numero di pagine</source>
        <translation>Numero di pagine</translation>
    </message>
    <message>
        <source>Numero totale di pagine (cartelle)</source>
        <translation>Numero totale di pagine (cartelle)</translation>
    </message>
    <message>
        <source>Numero di blocchi per pagina</source>
        <translation>Numero di blocchi per pagina</translation>
    </message>
    <message>
        <source>Numero di righe per blocco</source>
        <translation>Numero di righe per blocco</translation>
    </message>
    <message>
        <source>Numero di colonne</source>
        <translation>Numero di colonne</translation>
    </message>
    <message>
        <source>Numero di celle (colonne) per riga</source>
        <translation>Numero di celle (colonne) per riga</translation>
    </message>
    <message>
        <source>Celle di ogni riga</source>
        <translation>Celle di ogni riga</translation>
    </message>
    <message>
        <source>Numero di estrazioni per riga</source>
        <translation>Numero di estrazioni per riga</translation>
    </message>
    <message>
        <source>Numero di celle da riempire (numeri,immagini,scritte) in ogni riga</source>
        <translation>Numero di celle da riempire (numeri,immagini,scritte) in ogni riga</translation>
    </message>
    <message>
        <source>Numero di immagini per riga</source>
        <translation>Numero di immagini per riga</translation>
    </message>
    <message>
        <source>Inserisci delle immagini al posto dei numeri nelle celle</source>
        <translation>Inserisci delle immagini al posto dei numeri nelle celle</translation>
    </message>
    <message>
        <source>Numero di scritte per riga</source>
        <translation>Numero di scritte per riga</translation>
    </message>
    <message>
        <source>Inserisci del testo al posto dei numeri nelle celle</source>
        <translation>Inserisci del testo al posto dei numeri nelle celle</translation>
    </message>
    <message>
        <source>Numeri da estrarre</source>
        <translation>Numeri da estrarre</translation>
    </message>
    <message>
        <source>Numero minimo da estrarre</source>
        <translation>Numero minimo da estrarre</translation>
    </message>
    <message>
        <source>Numero massimo da estrarre</source>
        <translation>Numero massimo da estrarre</translation>
    </message>
    <message>
        <source>Disegna a mano quali celle riempire, pagina per pagina</source>
        <translation>Disegna a mano quali celle riempire, pagina per pagina</translation>
    </message>
    <message>
        <source>Mappatura manuale</source>
        <translation>Mappatura manuale</translation>
    </message>
    <message>
        <source>Crea le pagine richieste e le aggiunge alla cartella</source>
        <translation>Crea le pagine richieste e le aggiunge alla cartella</translation>
    </message>
    <message>
        <source>Aggiungi pagine</source>
        <translation>Aggiungi pagine</translation>
    </message>
    <message>
        <source>Stampa la cartella su file</source>
        <translation>Stampa la cartella su file</translation>
    </message>
    <message>
        <source>STAMPA</source>
        <translation>STAMPA</translation>
    </message>
    <message>
        <source>Pagina</source>
        <translation>Pagina</translation>
    </message>
    <message>
        <source>Pagina visualizzata</source>
        <translation>Pagina visualizzata</translation>
    </message>
    <message>
        <source>di</source>
        <translation>di</translation>
    </message>
    <message>
        <source>Numero di pagine della cartella</source>
        <translation>Numero di pagine della cartella</translation>
    </message>
    <message>
        <source>Elimina la pagina visualizzata</source>
        <translation>Elimina la pagina visualizzata</translation>
    </message>
    <message>
        <source>Elimina</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Formato</source>
        <translation>Formato</translation>
    </message>
    <message>
        <source>Formato della carta su cui stampare</source>
        <translation>Formato della carta su cui stampare</translation>
    </message>
    <message>
        <source>Spazio tra i blocchi (mm)</source>
        <translation>Spazio tra i blocchi (mm)</translation>
    </message>
    <message>
        <source>Spazio tra i blocchi della pagina, in millimetri</source>
        <translation>Spazio tra i blocchi della pagina, in millimetri</translation>
    </message>
    <message>
        <source>I comandi di pagina e di blocco agiscono su tutte le pagine</source>
        <translation>I comandi di pagina e di blocco agiscono su tutte le pagine</translation>
    </message>
    <message>
        <source>Applica a tutte</source>
        <translation>Applica a tutte</translation>
    </message>
    <message>
        <source>Imposta lo spazio tra i blocchi</source>
        <translation>Imposta lo spazio tra i blocchi</translation>
    </message>
    <message>
        <source>Applica</source>
        <translation>Applica</translation>
    </message>
    <message>
        <source>Colori</source>
        <translation>Colori</translation>
    </message>
    <message>
        <source>Colore di sfondo della pagina</source>
        <translation>Colore di sfondo della pagina</translation>
    </message>
    <message>
        <source>Colora sfondo</source>
        <translation>Colora sfondo</translation>
    </message>
    <message>
        <source>Blocco</source>
        <translation>Blocco</translation>
    </message>
    <message>
        <source>Blocco selezionato</source>
        <translation>Blocco selezionato</translation>
    </message>
    <message>
        <source>Blocchi della pagina</source>
        <translation>Blocchi della pagina</translation>
    </message>
    <message>
        <source>Spessore linea esterna</source>
        <translation>Spessore linea esterna</translation>
    </message>
    <message>
        <source>Spessore della linea esterna del blocco (non ha ancora effetto)</source>
        <translation>Spessore della linea esterna del blocco (non ha ancora effetto)</translation>
    </message>
    <message>
        <source>Spessore linea interna</source>
        <translation>Spessore linea interna</translation>
    </message>
    <message>
        <source>Spessore delle linee interne del blocco (non ha ancora effetto)</source>
        <translation>Spessore delle linee interne del blocco (non ha ancora effetto)</translation>
    </message>
    <message>
        <source>I comandi di blocco agiscono su tutti i blocchi</source>
        <translation>I comandi di blocco agiscono su tutti i blocchi</translation>
    </message>
    <message>
        <source>Applica a tutti</source>
        <translation>Applica a tutti</translation>
    </message>
    <message>
        <source>Applica le impostazioni del blocco (non ha ancora effetto)</source>
        <translation>Applica le impostazioni del blocco (non ha ancora effetto)</translation>
    </message>
    <message>
        <source>Colore di sfondo delle celle del blocco</source>
        <translation>Colore di sfondo delle celle del blocco</translation>
    </message>
    <message>
        <source>Colore della linea esterna del blocco (non ha ancora effetto)</source>
        <translation>Colore della linea esterna del blocco (non ha ancora effetto)</translation>
    </message>
    <message>
        <source>Colore delle linee interne del blocco (non ha ancora effetto)</source>
        <translation>Colore delle linee interne del blocco (non ha ancora effetto)</translation>
    </message>
    <message>
        <source>Cella</source>
        <translation>Cella</translation>
    </message>
    <message>
        <source>Riga</source>
        <translation>Riga</translation>
    </message>
    <message>
        <source>Riga della cella nel suo blocco</source>
        <translation>Riga della cella nel suo blocco</translation>
    </message>
    <message>
        <source>Colonna</source>
        <translation>Colonna</translation>
    </message>
    <message>
        <source>Colonna della cella</source>
        <translation>Colonna della cella</translation>
    </message>
    <message>
        <source>Tipo della cella</source>
        <translation>Tipo della cella</translation>
    </message>
    <message>
        <source>Carattere delle celle selezionate</source>
        <translation>Carattere delle celle selezionate</translation>
    </message>
    <message>
        <source>Carattere...</source>
        <translation>Carattere...</translation>
    </message>
    <message>
        <source>Carattere della cella</source>
        <translation>Carattere della cella</translation>
    </message>
    <message>
        <source>Sceglie l&apos;immagine della cella selezionata</source>
        <translation>Sceglie l&apos;immagine della cella selezionata</translation>
    </message>
    <message>
        <source>I comandi di cella agiscono sulle stesse celle di tutte le pagine</source>
        <translation>I comandi di cella agiscono sulle stesse celle di tutte le pagine</translation>
    </message>
    <message>
        <source>Applica le impostazioni della cella (non ha ancora effetto)</source>
        <translation>Applica le impostazioni della cella (non ha ancora effetto)</translation>
    </message>
    <message>
        <source>Colore del testo delle celle selezionate</source>
        <translation>Colore del testo delle celle selezionate</translation>
    </message>
    <message>
        <source>Colora testo</source>
        <translation>Colora testo</translation>
    </message>
    <message>
        <source>Colore di sfondo delle celle selezionate</source>
        <translation>Colore di sfondo delle celle selezionate</translation>
    </message>
    <message>
        <source>Pulisci</source>
        <translation>Pulisci</translation>
    </message>
    <message>
        <source>Apri</source>
        <translation>Apri</translation>
    </message>
    <message>
        <source>Le mappature si aprono dall&apos;editor della mappatura manuale</source>
        <translation>Le mappature si aprono dall&apos;editor della mappatura manuale</translation>
    </message>
    <message>
        <source>Salva</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>Le mappature si salvano dall&apos;editor della mappatura manuale</source>
        <translation>Le mappature si salvano dall&apos;editor della mappatura manuale</translation>
    </message>
    <message>
        <source>Nuova</source>
        <translation>Nuova</translation>
    </message>
    <message>
        <source>Crea una nuova cartella</source>
        <translation>Crea una nuova cartella</translation>
    </message>
    <message>
        <source>Esci</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>Esce dal programma</source>
        <translation>Esce dal programma</translation>
    </message>
    <message>
        <source>Confronta blocchi</source>
        <translation>Confronta blocchi</translation>
    </message>
    <message>
        <source>Verifica che non vi siano blocchi uguali</source>
        <translation>Verifica che non vi siano blocchi uguali</translation>
    </message>
    <message>
        <source>Opzioni</source>
        <translation>Opzioni</translation>
    </message>
    <message>
        <source>Impostazioni del programma</source>
        <translation>Impostazioni del programma</translation>
    </message>
    <message>
        <source>Informazioni</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>Informazioni sul programma</source>
        <translation>Informazioni sul programma</translation>
    </message>
    <message>
        <source>Welcome to %1 %2!</source>
        <translation>Welcome to %1 %2!</translation>
    </message>
    <message>
        <source>La cartella non contiene pagine!</source>
        <translation>La cartella non contiene pagine!</translation>
    </message>
    <message>
        <source>Aggiungere pagine alla cartella prima di proseguire.</source>
        <translation>Aggiungere pagine alla cartella prima di proseguire.</translation>
    </message>
    <message>
        <source>Creazione file annullata!</source>
        <translation>Creazione file annullata!</translation>
    </message>
    <message>
        <source>Errore nella creazione del file:
%1</source>
        <translation>Errore nella creazione del file:
%1</translation>
    </message>
    <message>
        <source>Salva le cartelle su file</source>
        <translation>Salva le cartelle su file</translation>
    </message>
    <message>
        <source>Cartella classica</source>
        <translation>Cartella classica</translation>
    </message>
    <message>
        <source>Sei sicuro di voler uscire?</source>
        <translation>Sei sicuro di voler uscire?</translation>
    </message>
    <message>
        <source>Generatore di cartelle per la Quintra.
Advanced Bingo cards generator.</source>
        <translation>Generatore di cartelle per la Quintra.
Advanced Bingo cards generator.</translation>
    </message>
    <message>
        <source>Modifica valori</source>
        <translation>Modifica valori</translation>
    </message>
    <message>
        <source>Errore durante la modifica del valore nella tabella.</source>
        <translation>Errore durante la modifica del valore nella tabella.</translation>
    </message>
    <message>
        <source>Problema durante la modifica del valore nella tabella.</source>
        <translation>Problema durante la modifica del valore nella tabella.</translation>
    </message>
    <message>
        <source>Vuoi impostare il valore come STRINGA?</source>
        <translation>Vuoi impostare il valore come STRINGA?</translation>
    </message>
    <message>
        <source>Vuoi impostare il valore come CELLA VUOTA?</source>
        <translation>Vuoi impostare il valore come CELLA VUOTA?</translation>
    </message>
    <message>
        <source>Cella impostata come IMMAGINE.
Il percorso dell&apos;immagine deve essere scelto tramite il pannello a lato.</source>
        <translation>Cella impostata come IMMAGINE.
Il percorso dell&apos;immagine deve essere scelto tramite il pannello a lato.</translation>
    </message>
    <message>
        <source>L&apos;immagine per la cella selezionata è quella visibile. La si vuole Cambiare?</source>
        <translation>L&apos;immagine per la cella selezionata è quella visibile. La si vuole Cambiare?</translation>
    </message>
    <message>
        <source>Apre un&apos;immagine da inserire nella cella</source>
        <translation>Apre un&apos;immagine da inserire nella cella</translation>
    </message>
    <message>
        <source>JPEG (*.jpg *.jpeg);; TIFF (*.tif);; PNG (*.png);; GIF (*.gif);; BITMAP (*.bmp)</source>
        <translation>JPEG (*.jpg *.jpeg);; TIFF (*.tif);; PNG (*.png);; GIF (*.gif);; BITMAP (*.bmp)</translation>
    </message>
    <message>
        <source>L&apos;immagine per la cella selezionata è quella visisbile. Proseguire?</source>
        <translation>L&apos;immagine per la cella selezionata è quella visisbile. Proseguire?</translation>
    </message>
    <message>
        <source>Immagine impostata correttamente.</source>
        <translation>Immagine impostata correttamente.</translation>
    </message>
    <message>
        <source>Selezione immagine cella</source>
        <translation>Selezione immagine cella</translation>
    </message>
    <message>
        <source>Sei sicuro di voler cancellare la cartella e crearne una nuova?</source>
        <translation>Sei sicuro di voler cancellare la cartella e crearne una nuova?</translation>
    </message>
    <message>
        <source>Creazione annullata.</source>
        <translation>Creazione annullata.</translation>
    </message>
    <message>
        <source>Cartella di %1 pagine, %2 blocchi %3X%4 generata</source>
        <translation>Cartella di %1 pagine, %2 blocchi %3X%4 generata</translation>
    </message>
    <message>
        <source>Problemi di impostazione parametri: non posso proseguire!</source>
        <translation>Problemi di impostazione parametri: non posso proseguire!</translation>
    </message>
    <message>
        <source>%1

Vuoi proseguire comunque?</source>
        <translation>%1

Vuoi proseguire comunque?</translation>
    </message>
    <message>
        <source>Sto cancellando la precedente cartella...</source>
        <translation>Sto cancellando la precedente cartella...</translation>
    </message>
    <message>
        <source>Sto creando una cartella di %1 pagine, %2 blocchi %3X%4...</source>
        <translation>Sto creando una cartella di %1 pagine, %2 blocchi %3X%4...</translation>
    </message>
    <message>
        <source>Generazione numeri:
Errore durante l&apos;aggiunta della pagina %i.</source>
        <translation>Generazione numeri:
Errore durante l&apos;aggiunta della pagina %i.</translation>
    </message>
    <message>
        <source>Sono state create solo pagine vuote!</source>
        <translation>Sono state create solo pagine vuote!</translation>
    </message>
    <message>
        <source>Generazione numeri:
Errore durante la generazione della pagina %1.</source>
        <translation>Generazione numeri:
Errore durante la generazione della pagina %1.</translation>
    </message>
    <message>
        <source>Sto creando l&apos;ambiente per la mappatura manuale, attendere...</source>
        <translation>Sto creando l&apos;ambiente per la mappatura manuale, attendere...</translation>
    </message>
    <message>
        <source>Ambiente per la mappatura manuale creato.</source>
        <translation>Ambiente per la mappatura manuale creato.</translation>
    </message>
    <message>
        <source>Celle della pagina</source>
        <translation>Celle della pagina</translation>
    </message>
    <message>
        <source>La cartella non contiene la pagina da visualizzare (fuori range)!</source>
        <translation>La cartella non contiene la pagina da visualizzare (fuori range)!</translation>
    </message>
    <message>
        <source>Cartella vuota!</source>
        <translation>Cartella vuota!</translation>
    </message>
    <message>
        <source>La cartella è vuota!</source>
        <translation>La cartella è vuota!</translation>
    </message>
    <message>
        <source>Problema nell&apos;eliminazione della pagina!
Pagina non eliminata.</source>
        <translation>Problema nell&apos;eliminazione della pagina!
Pagina non eliminata.</translation>
    </message>
    <message>
        <source>Pagina eliminata correttamente.</source>
        <translation>Pagina eliminata correttamente.</translation>
    </message>
    <message>
        <source>Nessuna selezione</source>
        <translation>Nessuna selezione</translation>
    </message>
    <message>
        <source>Cella mancante</source>
        <translation>Cella mancante</translation>
    </message>
    <message>
        <source>Cella selezionata</source>
        <translation>Cella selezionata</translation>
    </message>
    <message>
        <source>Selezione multipla</source>
        <translation>Selezione multipla</translation>
    </message>
    <message>
        <source>Impostazioni corrette</source>
        <translation>Impostazioni corrette</translation>
    </message>
    <message>
        <source>Estrazioni per riga: Per un corretto funzionamento si consiglia il valore 5.</source>
        <translation>Estrazioni per riga: Per un corretto funzionamento si consiglia il valore 5.</translation>
    </message>
    <message>
        <source>Nessun elemento selezionato!</source>
        <translation>Nessun elemento selezionato!</translation>
    </message>
    <message>
        <source>Modifica colore sfondo blocchi applicata.</source>
        <translation>Modifica colore sfondo blocchi applicata.</translation>
    </message>
    <message>
        <source>Modifica colore testo cella applicata.</source>
        <translation>Modifica colore testo cella applicata.</translation>
    </message>
    <message>
        <source>Modifica colore sfondo cella applicata.</source>
        <translation>Modifica colore sfondo cella applicata.</translation>
    </message>
    <message>
        <source>Attenzione</source>
        <translation>Attenzione</translation>
    </message>
    <message>
        <source>Errore: Le pagine hanno dimensioni diverse.
Alcune celle sono state omesse!</source>
        <translation>Errore: Le pagine hanno dimensioni diverse.
Alcune celle sono state omesse!</translation>
    </message>
    <message>
        <source>Modifica applicata.</source>
        <translation>Modifica applicata.</translation>
    </message>
    <message>
        <source>Font impostato correttamente.</source>
        <translation>Font impostato correttamente.</translation>
    </message>
    <message>
        <source>Verifica blocchi uguali:
Pagine cartella non ancora generate.
Impossibile procedere alla verifica!</source>
        <translation>Verifica blocchi uguali:
Pagine cartella non ancora generate.
Impossibile procedere alla verifica!</translation>
    </message>
    <message>
        <source>Non vi sono blocchi uguali!

%1</source>
        <translation>Non vi sono blocchi uguali!

%1</translation>
    </message>
    <message>
        <source>Vi sono %1 blocchi uguali!

%2

Vuoi visualizzarli?</source>
        <translation>Vi sono %1 blocchi uguali!

%2

Vuoi visualizzarli?</translation>
    </message>
    <message>
        <source>... e altre coppie di blocchi uguali: %1.</source>
        <translation>... e altre coppie di blocchi uguali: %1.</translation>
    </message>
    <message>
        <source>Anteprima di stampa</source>
        <translation>Anteprima di stampa</translation>
    </message>
    <message>
        <source>Mostra la pagina come sarà stampata</source>
        <translation>Mostra la pagina come sarà stampata</translation>
    </message>
    <message>
        <source>Parametri</source>
        <translation>Parametri</translation>
    </message>
    <message>
        <source>Stile</source>
        <translation>Stile</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;Visualizza</source>
        <translation>&amp;Visualizza</translation>
    </message>
    <message>
        <source>&amp;Strumenti</source>
        <translation>&amp;Strumenti</translation>
    </message>
    <message>
        <source>&amp;Aiuto</source>
        <translation>&amp;Aiuto</translation>
    </message>
    <message>
        <source>Per ricominciare da capo scegliere &quot;Nuova&quot;</source>
        <translation>Per ricominciare da capo scegliere &quot;Nuova&quot;</translation>
    </message>
    <message>
        <source>Linea esterna</source>
        <translation>Linea esterna</translation>
    </message>
    <message>
        <source>Linea interna</source>
        <translation>Linea interna</translation>
    </message>
    <message>
        <source>Salva registro...</source>
        <translation>Salva registro...</translation>
    </message>
    <message>
        <source>Salva le schede in un file di testo, una per riga</source>
        <translation>Salva le schede in un file di testo, una per riga</translation>
    </message>
    <message>
        <source>Serata...</source>
        <translation>Serata...</translation>
    </message>
    <message>
        <source>Chiama i numeri e controlla le schede</source>
        <translation>Chiama i numeri e controlla le schede</translation>
    </message>
    <message>
        <source>Salva il registro su file</source>
        <translation>Salva il registro su file</translation>
    </message>
    <message>
        <source>Registro salvato.</source>
        <translation>Registro salvato.</translation>
    </message>
    <message>
        <source>L&apos;immagine di base non può essere letta:
%1

Le celle con immagine resteranno vuote in stampa.</source>
        <translation>L&apos;immagine di base non può essere letta:
%1

Le celle con immagine resteranno vuote in stampa.</translation>
    </message>
    <message>
        <source>Stampa non riuscita!</source>
        <translation>Stampa non riuscita!</translation>
    </message>
    <message>
        <source>Pagine non stampate dopo l&apos;ultima modifica: %1.</source>
        <translation>Pagine non stampate dopo l&apos;ultima modifica: %1.</translation>
    </message>
    <message>
        <source>Tutte le pagine sono state stampate dopo l&apos;ultima modifica.</source>
        <translation>Tutte le pagine sono state stampate dopo l&apos;ultima modifica.</translation>
    </message>
    <message>
        <source>Lo spazio tra i blocchi è troppo grande per il foglio: le cartelle escono dalla pagina.
Pagine: %1</source>
        <translation>Lo spazio tra i blocchi è troppo grande per il foglio: le cartelle escono dalla pagina.
Pagine: %1</translation>
    </message>
    <message>
        <source>Il colore delle linee non ha ancora effetto!</source>
        <translation>Il colore delle linee non ha ancora effetto!</translation>
    </message>
    <message>
        <source>Immagine...</source>
        <translation>Immagine...</translation>
    </message>
    <message>
        <source>Generazione numeri:
Altre pagine non generate (contate da 1): %1</source>
        <translation>Generazione numeri:
Altre pagine non generate (contate da 1): %1</translation>
    </message>
    <message>
        <source>Riassumi le altre in un solo messaggio</source>
        <translation>Riassumi le altre in un solo messaggio</translation>
    </message>
    <message>
        <source>Valori di config.ini cambiati:
%1</source>
        <translation>Valori di config.ini cambiati:
%1</translation>
    </message>
    <message>
        <source>Numera i blocchi in stampa</source>
        <translation>Numera i blocchi in stampa</translation>
    </message>
    <message>
        <source>Stampa accanto a ogni blocco il suo numero, per esempio 12.3</source>
        <translation>Stampa accanto a ogni blocco il suo numero, per esempio 12.3</translation>
    </message>
    <message>
        <source>Numeri di blocco non stampati per mancanza di posto: %1.</source>
        <translation>Numeri di blocco non stampati per mancanza di posto: %1.</translation>
    </message>
    <message>
        <source>Manuale</source>
        <translation>Manuale</translation>
    </message>
    <message>
        <source>Come si usa il programma, passo per passo</source>
        <translation>Come si usa il programma, passo per passo</translation>
    </message>
    <message>
        <source>Svuota le celle selezionate</source>
        <translation>Svuota le celle selezionate</translation>
    </message>
</context>
<context>
    <name>Manuale</name>
    <message>
        <source>Torna dove si leggeva prima</source>
        <translation>Torna dove si leggeva prima</translation>
    </message>
    <message>
        <source>Indietro</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>Mostra l&apos;indice del manuale</source>
        <translation>Mostra l&apos;indice del manuale</translation>
    </message>
    <message>
        <source>Indice</source>
        <translation>Indice</translation>
    </message>
    <message>
        <source>Cerca:</source>
        <translation>Cerca:</translation>
    </message>
    <message>
        <source>Testo da cercare nel manuale: Invio va al prossimo</source>
        <translation>Testo da cercare nel manuale: Invio va al prossimo</translation>
    </message>
    <message>
        <source>Testo del manuale</source>
        <translation>Testo del manuale</translation>
    </message>
    <message>
        <source>Cerca</source>
        <translation>Cerca</translation>
    </message>
    <message>
        <source>Testo non trovato!</source>
        <translation>Testo non trovato!</translation>
    </message>
    <message>
        <source>Quintra - Manuale</source>
        <translation>Quintra - Manuale</translation>
    </message>
    <message>
        <source>Il manuale non è in %1!</source>
        <translation>Il manuale non è in %1!</translation>
    </message>
</context>
<context>
    <name>MappingFile</name>
    <message>
        <source>nessun contenuto</source>
        <translation>nessun contenuto</translation>
    </message>
    <message>
        <source>il primo carattere non indica il numero di righe della pagina</source>
        <translation>il primo carattere non indica il numero di righe della pagina</translation>
    </message>
    <message>
        <source>caratteri insufficienti per le celle della pagina</source>
        <translation>caratteri insufficienti per le celle della pagina</translation>
    </message>
    <message>
        <source>oltre il numero massimo di pagine (%1)</source>
        <translation>oltre il numero massimo di pagine (%1)</translation>
    </message>
    <message>
        <source>Queste righe del file non descrivono una pagina e sono state saltate:</source>
        <translation>Queste righe del file non descrivono una pagina e sono state saltate:</translation>
    </message>
</context>
<context>
    <name>MemoryQuestion</name>
    <message>
        <source>La memoria libera potrebbe non bastare, e il programma chiudersi.
MB necessari: %1
MB liberi: %2

Vuoi proseguire comunque?</source>
        <translation>La memoria libera potrebbe non bastare, e il programma chiudersi.
MB necessari: %1
MB liberi: %2

Vuoi proseguire comunque?</translation>
    </message>
    <message>
        <source>La memoria libera non è bastata: nulla è cambiato.</source>
        <translation>La memoria libera non è bastata: nulla è cambiato.</translation>
    </message>
</context>
<context>
    <name>MsgArea</name>
    <message>
        <source>Area messaggi</source>
        <translation>Area messaggi</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Salva</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>Esci</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>Testo modificato</source>
        <translation>Testo modificato</translation>
    </message>
    <message>
        <source>Vuoi uscire senza salvare?</source>
        <translation>Vuoi uscire senza salvare?</translation>
    </message>
    <message>
        <source>Salva su file</source>
        <translation>Salva su file</translation>
    </message>
    <message>
        <source>File salvato con successo.</source>
        <translation>File salvato con successo.</translation>
    </message>
    <message>
        <source>Errore nel salvataggio del file!</source>
        <translation>Errore nel salvataggio del file!</translation>
    </message>
    <message>
        <source>Le modifiche al testo vanno perse.</source>
        <translation>Le modifiche al testo vanno perse.</translation>
    </message>
    <message>
        <source>Il testo non è stato toccato.</source>
        <translation>Il testo non è stato toccato.</translation>
    </message>
    <message>
        <source>Testo</source>
        <translation>Testo</translation>
    </message>
    <message>
        <source>Chiude la finestra</source>
        <translation>Chiude la finestra</translation>
    </message>
</context>
<context>
    <name>NuovaPartita</name>
    <message>
        <source>Quintra - Nuova partita</source>
        <translation>Quintra - Nuova partita</translation>
    </message>
    <message>
        <source>Numeri da</source>
        <translation>Numeri da</translation>
    </message>
    <message>
        <source>Il numero minimo del tabellone</source>
        <translation>Il numero minimo del tabellone</translation>
    </message>
    <message>
        <source>a</source>
        <translation>a</translation>
    </message>
    <message>
        <source>Il numero massimo del tabellone</source>
        <translation>Il numero massimo del tabellone</translation>
    </message>
    <message>
        <source>I numeri chiamati (%1) saranno tolti tutti.</source>
        <translation>I numeri chiamati (%1) saranno tolti tutti.</translation>
    </message>
</context>
<context>
    <name>Options</name>
    <message>
        <source>Impostazioni</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Consente di ri-selezionare le opzioni al primo avvio del programma</source>
        <translation>Consente di ri-selezionare le opzioni al primo avvio del programma</translation>
    </message>
    <message>
        <source>Impostazioni iniziali (per il prossimo avvio)</source>
        <translation>Impostazioni iniziali (per il prossimo avvio)</translation>
    </message>
    <message>
        <source>Azzera ed esci</source>
        <translation>Azzera ed esci</translation>
    </message>
    <message>
        <source>Azzera e continua</source>
        <translation>Azzera e continua</translation>
    </message>
    <message>
        <source>Modifica le impostazioni direttamente</source>
        <translation>Modifica le impostazioni direttamente</translation>
    </message>
    <message>
        <source>Modifica diretta</source>
        <translation>Modifica diretta</translation>
    </message>
    <message>
        <source>Problema durante la cancellazione del file:
 %1</source>
        <translation>Problema durante la cancellazione del file:
 %1</translation>
    </message>
    <message>
        <source>File di configurazione eliminato correttamente.</source>
        <translation>File di configurazione eliminato correttamente.</translation>
    </message>
    <message>
        <source>Proseguire con la cancellazionede del file di configurazione e l&apos;uscita dal programma?</source>
        <translation>Proseguire con la cancellazionede del file di configurazione e l&apos;uscita dal programma?</translation>
    </message>
    <message>
        <source>Proseguire con la cancellazionede del file di configurazione?</source>
        <translation>Proseguire con la cancellazionede del file di configurazione?</translation>
    </message>
    <message>
        <source>Quintra - Opzioni</source>
        <translation>Quintra - Opzioni</translation>
    </message>
    <message>
        <source>Le impostazioni di config.ini vanno perse.</source>
        <translation>Le impostazioni di config.ini vanno perse.</translation>
    </message>
</context>
<context>
    <name>Overwriting</name>
    <message>
        <source>Il file esiste già:
%1

Sostituirlo?</source>
        <translation>Il file esiste già:
%1

Sostituirlo?</translation>
    </message>
</context>
<context>
    <name>PagePreview</name>
    <message>
        <source>Mostra la pagina precedente</source>
        <translation>Mostra la pagina precedente</translation>
    </message>
    <message>
        <source>Precedente</source>
        <translation>Precedente</translation>
    </message>
    <message>
        <source>Mostra la pagina successiva</source>
        <translation>Mostra la pagina successiva</translation>
    </message>
    <message>
        <source>Successiva</source>
        <translation>Successiva</translation>
    </message>
    <message>
        <source>Ingrandimento:</source>
        <translation>Ingrandimento:</translation>
    </message>
    <message>
        <source>Grandezza in cui la pagina è mostrata</source>
        <translation>Grandezza in cui la pagina è mostrata</translation>
    </message>
    <message>
        <source>Pagina intera</source>
        <translation>Pagina intera</translation>
    </message>
    <message>
        <source>Larghezza</source>
        <translation>Larghezza</translation>
    </message>
    <message>
        <source>Pagina come sarà stampata</source>
        <translation>Pagina come sarà stampata</translation>
    </message>
    <message>
        <source>Anteprima di stampa</source>
        <translation>Anteprima di stampa</translation>
    </message>
    <message>
        <source>La cartella è vuota!</source>
        <translation>La cartella è vuota!</translation>
    </message>
    <message>
        <source>Pagina %1 di %2, %3</source>
        <translation>Pagina %1 di %2, %3</translation>
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
        <translation>L&apos;immagine di base non può essere letta.</translation>
    </message>
    <message>
        <source>blocco %1, riga %2, colonna %3, %4</source>
        <translation>blocco %1, riga %2, colonna %3, %4</translation>
    </message>
    <message>
        <source>cella mancante</source>
        <translation>cella mancante</translation>
    </message>
</context>
<context>
    <name>ParameterRules</name>
    <message>
        <source>Non posso creare %1 celle piene con solo %2 numeri.</source>
        <translation>Non posso creare %1 celle piene con solo %2 numeri.</translation>
    </message>
    <message>
        <source>Non posso inserire %1 jolly in sole %2 colonne.</source>
        <translation>Non posso inserire %1 jolly in sole %2 colonne.</translation>
    </message>
    <message>
        <source>Non posso inserire %1 scritte in sole %2 colonne.</source>
        <translation>Non posso inserire %1 scritte in sole %2 colonne.</translation>
    </message>
    <message>
        <source>Non posso inserire %1 scritte e immagini in sole %2 colonne.</source>
        <translation>Non posso inserire %1 scritte e immagini in sole %2 colonne.</translation>
    </message>
    <message>
        <source>Non posso inserire %1 jolly con sole %2 estrazioni.</source>
        <translation>Non posso inserire %1 jolly con sole %2 estrazioni.</translation>
    </message>
    <message>
        <source>Non posso inserire %1 scritte con sole %2 estrazioni.</source>
        <translation>Non posso inserire %1 scritte con sole %2 estrazioni.</translation>
    </message>
    <message>
        <source>Non posso inserire %1 scritte e immagini con sole %2 estrazioni.</source>
        <translation>Non posso inserire %1 scritte e immagini con sole %2 estrazioni.</translation>
    </message>
    <message>
        <source>Non posso inserire %1 numeri in sole %2 colonne.</source>
        <translation>Non posso inserire %1 numeri in sole %2 colonne.</translation>
    </message>
    <message>
        <source>Le pagine totali richieste (%1)
eccedono il massimo consentito (%2).</source>
        <translation>Le pagine totali richieste (%1)
eccedono il massimo consentito (%2).</translation>
    </message>
    <message>
        <source>Si sconsiglia di proseguire per le seguenti ragioni:
%1 -&gt; caselle totali richieste.
%2 -&gt; caselle totali in memoria.
%3 -&gt; caselle massime gestibili.
(eventuale crash del programma)</source>
        <translation>Si sconsiglia di proseguire per le seguenti ragioni:
%1 -&gt; caselle totali richieste.
%2 -&gt; caselle totali in memoria.
%3 -&gt; caselle massime gestibili.
(eventuale crash del programma)</translation>
    </message>
    <message>
        <source>Nuova: si apre l&apos;editor della mappatura manuale</source>
        <translation>Nuova: si apre l&apos;editor della mappatura manuale</translation>
    </message>
    <message>
        <source>Nuova: %1 pagine × %2 blocchi = %3 blocchi</source>
        <translation>Nuova: %1 pagine × %2 blocchi = %3 blocchi</translation>
    </message>
</context>
<context>
    <name>PersonaleChkBox</name>
    <message>
        <source>Numero</source>
        <translation>Numero</translation>
    </message>
    <message>
        <source>Testo</source>
        <translation>Testo</translation>
    </message>
    <message>
        <source>Immagine</source>
        <translation>Immagine</translation>
    </message>
    <message>
        <source>Vuota</source>
        <translation>Vuota</translation>
    </message>
</context>
<context>
    <name>Premi</name>
    <message>
        <source>Ambo</source>
        <translation>Ambo</translation>
    </message>
    <message>
        <source>Terno</source>
        <translation>Terno</translation>
    </message>
    <message>
        <source>Quaterna</source>
        <translation>Quaterna</translation>
    </message>
    <message>
        <source>Cinquina</source>
        <translation>Cinquina</translation>
    </message>
    <message>
        <source>Due cinquine</source>
        <translation>Due cinquine</translation>
    </message>
    <message>
        <source>Tombola</source>
        <translation>Tombola</translation>
    </message>
</context>
<context>
    <name>Registro</name>
    <message>
        <source>nessun contenuto</source>
        <translation>nessun contenuto</translation>
    </message>
    <message>
        <source>testo troncato (file incompleto)</source>
        <translation>testo troncato (file incompleto)</translation>
    </message>
    <message>
        <source>troppi caratteri per una scheda</source>
        <translation>troppi caratteri per una scheda</translation>
    </message>
    <message>
        <source>all&apos;inizio non vi sono numeri validi di pagina e di scheda</source>
        <translation>all&apos;inizio non vi sono numeri validi di pagina e di scheda</translation>
    </message>
    <message>
        <source>manca il segno | prima delle celle</source>
        <translation>manca il segno | prima delle celle</translation>
    </message>
    <message>
        <source>una cella non è né un numero, né un testo tra virgolette, né la parola immagine</source>
        <translation>una cella non è né un numero, né un testo tra virgolette, né la parola immagine</translation>
    </message>
    <message>
        <source>un numero è maggiore di %1</source>
        <translation>un numero è maggiore di %1</translation>
    </message>
    <message>
        <source>le virgolette di un testo non sono chiuse, o \ è usato male</source>
        <translation>le virgolette di un testo non sono chiuse, o \ è usato male</translation>
    </message>
    <message>
        <source>righe o celle oltre il massimo di %1</source>
        <translation>righe o celle oltre il massimo di %1</translation>
    </message>
    <message>
        <source>numeri di pagina e di scheda già usati</source>
        <translation>numeri di pagina e di scheda già usati</translation>
    </message>
    <message>
        <source>Queste righe del registro non sono schede e sono state saltate:</source>
        <translation>Queste righe del registro non sono schede e sono state saltate:</translation>
    </message>
    <message>
        <source>Una scheda ha testi troppo lunghi.</source>
        <translation>Una scheda ha testi troppo lunghi.</translation>
    </message>
</context>
<context>
    <name>RigheSaltate</name>
    <message>
        <source>Riga %1: %2.</source>
        <translation>Riga %1: %2.</translation>
    </message>
    <message>
        <source>Righe da %1 a %2: %3.</source>
        <translation>Righe da %1 a %2: %3.</translation>
    </message>
    <message>
        <source>L&apos;elenco continua fino alla riga %1.</source>
        <translation>L&apos;elenco continua fino alla riga %1.</translation>
    </message>
</context>
<context>
    <name>Serata</name>
    <message>
        <source>Quintra - Serata</source>
        <translation>Quintra - Serata</translation>
    </message>
    <message>
        <source>L&apos;ultimo numero chiamato</source>
        <translation>L&apos;ultimo numero chiamato</translation>
    </message>
    <message>
        <source>I numeri chiamati prima</source>
        <translation>I numeri chiamati prima</translation>
    </message>
    <message>
        <source>Un clic chiama un numero, un altro lo toglie</source>
        <translation>Un clic chiama un numero, un altro lo toglie</translation>
    </message>
    <message>
        <source>Tabellone</source>
        <translation>Tabellone</translation>
    </message>
    <message>
        <source>Chiamata</source>
        <translation>Chiamata</translation>
    </message>
    <message>
        <source>Numero</source>
        <translation>Numero</translation>
    </message>
    <message>
        <source>Il numero da chiamare; se è già stato chiamato viene tolto</source>
        <translation>Il numero da chiamare; se è già stato chiamato viene tolto</translation>
    </message>
    <message>
        <source>Chiama a caso uno dei numeri rimasti</source>
        <translation>Chiama a caso uno dei numeri rimasti</translation>
    </message>
    <message>
        <source>Estrai</source>
        <translation>Estrai</translation>
    </message>
    <message>
        <source>Controllo di una scheda</source>
        <translation>Controllo di una scheda</translation>
    </message>
    <message>
        <source>Scheda</source>
        <translation>Scheda</translation>
    </message>
    <message>
        <source>Pagina e scheda, per esempio 12.3</source>
        <translation>Pagina e scheda, per esempio 12.3</translation>
    </message>
    <message>
        <source>Mostra la scheda con i numeri chiamati</source>
        <translation>Mostra la scheda con i numeri chiamati</translation>
    </message>
    <message>
        <source>Controlla</source>
        <translation>Controlla</translation>
    </message>
    <message>
        <source>Che cosa ha la scheda, e con quale chiamata</source>
        <translation>Che cosa ha la scheda, e con quale chiamata</translation>
    </message>
    <message>
        <source>Vincite</source>
        <translation>Vincite</translation>
    </message>
    <message>
        <source>Schede</source>
        <translation>Schede</translation>
    </message>
    <message>
        <source>Le schede con tutti i numeri chiamati</source>
        <translation>Le schede con tutti i numeri chiamati</translation>
    </message>
    <message>
        <source>Le schede a cui manca un solo numero</source>
        <translation>Le schede a cui manca un solo numero</translation>
    </message>
    <message>
        <source>Chiama un numero</source>
        <translation>Chiama un numero</translation>
    </message>
    <message>
        <source>Controlla una scheda</source>
        <translation>Controlla una scheda</translation>
    </message>
    <message>
        <source>Nuova partita...</source>
        <translation>Nuova partita...</translation>
    </message>
    <message>
        <source>Toglie tutti i numeri chiamati e ricomincia</source>
        <translation>Toglie tutti i numeri chiamati e ricomincia</translation>
    </message>
    <message>
        <source>Apri registro...</source>
        <translation>Apri registro...</translation>
    </message>
    <message>
        <source>Apre un registro</source>
        <translation>Apre un registro</translation>
    </message>
    <message>
        <source>Schermo intero</source>
        <translation>Schermo intero</translation>
    </message>
    <message>
        <source>Chiudi</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>immagine</source>
        <translation>immagine</translation>
    </message>
    <message>
        <source>%1: chiamata %2, numero %3</source>
        <translation>%1: chiamata %2, numero %3</translation>
    </message>
    <message>
        <source>Nessuna vincita</source>
        <translation>Nessuna vincita</translation>
    </message>
    <message>
        <source>La partita non si può cominciare.</source>
        <translation>La partita non si può cominciare.</translation>
    </message>
    <message>
        <source>Nuova partita, numeri da %1 a %2.</source>
        <translation>Nuova partita, numeri da %1 a %2.</translation>
    </message>
    <message>
        <source>Il numero %1 non è in gioco: i numeri vanno da %2 a %3!</source>
        <translation>Il numero %1 non è in gioco: i numeri vanno da %2 a %3!</translation>
    </message>
    <message>
        <source>La chiamata non si può salvare, nulla è cambiato.</source>
        <translation>La chiamata non si può salvare, nulla è cambiato.</translation>
    </message>
    <message>
        <source>Chiamato il %1.</source>
        <translation>Chiamato il %1.</translation>
    </message>
    <message>
        <source>Tolto il %1.</source>
        <translation>Tolto il %1.</translation>
    </message>
    <message>
        <source>Tutti i numeri sono stati chiamati!</source>
        <translation>Tutti i numeri sono stati chiamati!</translation>
    </message>
    <message>
        <source>Scrivere un numero da %1 a %2!</source>
        <translation>Scrivere un numero da %1 a %2!</translation>
    </message>
    <message>
        <source>Scrivere la pagina e la scheda, per esempio 12.3!</source>
        <translation>Scrivere la pagina e la scheda, per esempio 12.3!</translation>
    </message>
    <message>
        <source>La scheda %1 non esiste!</source>
        <translation>La scheda %1 non esiste!</translation>
    </message>
    <message>
        <source>Scheda %1.</source>
        <translation>Scheda %1.</translation>
    </message>
    <message>
        <source>Numeri chiamati: %1 di %2</source>
        <translation>Numeri chiamati: %1 di %2</translation>
    </message>
    <message>
        <source>In attesa di un numero: %1</source>
        <translation>In attesa di un numero: %1</translation>
    </message>
    <message>
        <source>Nessuna scheda</source>
        <translation>Nessuna scheda</translation>
    </message>
    <message>
        <source>Scheda %1</source>
        <translation>Scheda %1</translation>
    </message>
    <message>
        <source>La serata di prima non si può mettere da parte.</source>
        <translation>La serata di prima non si può mettere da parte.</translation>
    </message>
    <message>
        <source>In %1 c&apos;è una serata con altre schede (numeri chiamati: %2).

Continuare quella? Con No ne comincia una nuova, e quella viene messa da parte.</source>
        <translation>In %1 c&apos;è una serata con altre schede (numeri chiamati: %2).

Continuare quella? Con No ne comincia una nuova, e quella viene messa da parte.</translation>
    </message>
    <message>
        <source>La serata non si può salvare in %1.</source>
        <translation>La serata non si può salvare in %1.</translation>
    </message>
    <message>
        <source>Dove salvare la serata</source>
        <translation>Dove salvare la serata</translation>
    </message>
    <message>
        <source>Il registro non si può leggere.</source>
        <translation>Il registro non si può leggere.</translation>
    </message>
    <message>
        <source>Il registro non contiene schede.</source>
        <translation>Il registro non contiene schede.</translation>
    </message>
    <message>
        <source>La serata non si può salvare accanto al registro.</source>
        <translation>La serata non si può salvare accanto al registro.</translation>
    </message>
    <message>
        <source>La serata non può continuare.</source>
        <translation>La serata non può continuare.</translation>
    </message>
    <message>
        <source>Schede: %1. Numeri da %2 a %3. Chiamati: %4.</source>
        <translation>Schede: %1. Numeri da %2 a %3. Chiamati: %4.</translation>
    </message>
    <message>
        <source>Questo registro è già aperto.</source>
        <translation>Questo registro è già aperto.</translation>
    </message>
    <message>
        <source>&amp;Partita</source>
        <translation>&amp;Partita</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;Visualizza</source>
        <translation>&amp;Visualizza</translation>
    </message>
    <message>
        <source>Righe illeggibili nel file delle chiamate: %1!</source>
        <translation>Righe illeggibili nel file delle chiamate: %1!</translation>
    </message>
    <message>
        <source>Tombola: %1</source>
        <translation>Tombola: %1</translation>
    </message>
    <message>
        <source>Il file delle chiamate non si può leggere.</source>
        <translation>Il file delle chiamate non si può leggere.</translation>
    </message>
    <message>
        <source>Le chiamate di prima sono illeggibili e sono state messe da parte:
%1</source>
        <translation>Le chiamate di prima sono illeggibili e sono state messe da parte:
%1</translation>
    </message>
    <message>
        <source>Non è un file.</source>
        <translation>Non è un file.</translation>
    </message>
    <message>
        <source>Il registro non si può leggere fino in fondo. Schede lette: %1.</source>
        <translation>Il registro non si può leggere fino in fondo. Schede lette: %1.</translation>
    </message>
    <message>
        <source>&amp;Aiuto</source>
        <translation>&amp;Aiuto</translation>
    </message>
    <message>
        <source>Manuale</source>
        <translation>Manuale</translation>
    </message>
    <message>
        <source>Come si usa il programma, passo per passo</source>
        <translation>Come si usa il programma, passo per passo</translation>
    </message>
</context>
<context>
    <name>SpokenContent</name>
    <message>
        <source>numero</source>
        <translation>numero</translation>
    </message>
    <message>
        <source>numero %1</source>
        <translation>numero %1</translation>
    </message>
    <message>
        <source>testo</source>
        <translation>testo</translation>
    </message>
    <message>
        <source>testo %1</source>
        <translation>testo %1</translation>
    </message>
    <message>
        <source>immagine</source>
        <translation>immagine</translation>
    </message>
    <message>
        <source>vuota</source>
        <translation>vuota</translation>
    </message>
</context>
<context>
    <name>TabelloneModel</name>
    <message>
        <source>nessun numero</source>
        <translation>nessun numero</translation>
    </message>
</context>
</TS>
