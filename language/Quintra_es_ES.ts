<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="it_IT">
<context>
    <name>Cartella</name>
    <message>
        <source>Pag %1 blocco %2 = Pag %3 blocco %4</source>
        <translation>Pág. %1, cartón %2 = Pág. %3, cartón %4</translation>
    </message>
    <message>
        <source>Blocchi verificati: %1
Confronti tra blocchi: %2
Celle verificate: %3
Blocchi uguali: %4 (%5%)</source>
        <translation>Cartones comprobados: %1
Comparaciones entre cartones: %2
Casillas comprobadas: %3
Cartones iguales: %4 (%5&#xa0;%)</translation>
    </message>
    <message>
        <source>La cartella e&apos; vuota od ha solo una pagina.
I blocchi di una pagina sono sempre diversi.</source>
        <translation>La serie de cartones está vacía o solo tiene una página.
Los cartones de una página son siempre distintos.</translation>
    </message>
    <message>
        <source>Confronto pagina %1 di %2</source>
        <translation>Comparando la página %1 de %2</translation>
    </message>
    <message>
        <source>numero</source>
        <translation>número</translation>
    </message>
    <message>
        <source>testo</source>
        <translation>texto</translation>
    </message>
    <message>
        <source>immagine</source>
        <translation>imagen</translation>
    </message>
    <message>
        <source>vuota</source>
        <translation>vacía</translation>
    </message>
</context>
<context>
    <name>CasellaAccessibile</name>
    <message>
        <source>riga %1, colonna %2, %3, %4</source>
        <translation>fila %1, columna %2, %3, %4</translation>
    </message>
    <message>
        <source>spuntata</source>
        <translation>marcada</translation>
    </message>
    <message>
        <source>non spuntata</source>
        <translation>no marcada</translation>
    </message>
</context>
<context>
    <name>CaselleDelegate</name>
    <message>
        <source>%1, chiamato</source>
        <translation>%1, cantado</translation>
    </message>
    <message>
        <source>%1, non chiamato</source>
        <translation>%1, sin cantar</translation>
    </message>
</context>
<context>
    <name>CreateOutputFile</name>
    <message>
        <source>Formato file sconosciuto!</source>
        <translation>¡Formato de archivo desconocido!</translation>
    </message>
    <message>
        <source>Formato %1 non disponibile. Creazione annullata.</source>
        <translation>Formato %1 no disponible. Creación cancelada.</translation>
    </message>
    <message>
        <source>Impossibile scrivere sul file!</source>
        <translation>¡No se puede escribir en el archivo!</translation>
    </message>
    <message>
        <source>PDF: Stampa pagina %1 di %2 (%3%) in corso...</source>
        <translation>PDF: imprimiendo la página %1 de %2 (%3&#xa0;%)...</translation>
    </message>
    <message>
        <source>Impossibile continuare a scrivere sul file!</source>
        <translation>¡No se puede seguir escribiendo en el archivo!</translation>
    </message>
    <message>
        <source>Stampa PDF completata!</source>
        <translation>¡Impresión en PDF completada!</translation>
    </message>
    <message>
        <source>File creato con successo!

Nome: %1
Percorso: %2

Pagine: %3
Dimensione: %4 Bytes (%5 MB)
----------------------------------------

Dimensioni pagina: %6</source>
        <translation>¡Archivo creado correctamente!

Nombre: %1
Ruta: %2

Páginas: %3
Tamaño: %4 bytes (%5 MB)
----------------------------------------

Tamaño de página: %6</translation>
    </message>
</context>
<context>
    <name>Diario</name>
    <message>
        <source>La serata è già aperta in un&apos;altra finestra.</source>
        <translation>La noche de bingo ya está abierta en otra ventana.</translation>
    </message>
    <message>
        <source>Non è un file.</source>
        <translation>No es un archivo.</translation>
    </message>
</context>
<context>
    <name>EditPersonale</name>
    <message>
        <source>Pagina</source>
        <translation>Página</translation>
    </message>
    <message>
        <source>La pagina mostrata</source>
        <translation>La página mostrada</translation>
    </message>
    <message>
        <source>di</source>
        <translation>de</translation>
    </message>
    <message>
        <source>Il numero di pagine</source>
        <translation>El número de páginas</translation>
    </message>
    <message>
        <source>I numeri di questa pagina sono estratti colonna per colonna, ciascuna con il proprio intervallo</source>
        <translation>Los números de esta página se extraen columna por columna, cada una de su propio intervalo</translation>
    </message>
    <message>
        <source>Ordina numeri sulle colonne</source>
        <translation>Extraer números por columnas</translation>
    </message>
    <message>
        <source>Selezione</source>
        <translation>Selección</translation>
    </message>
    <message>
        <source>La selezione comprende tutte le celle della pagina</source>
        <translation>La selección abarca todas las casillas de la página</translation>
    </message>
    <message>
        <source>Tutte</source>
        <translation>Todas</translation>
    </message>
    <message>
        <source>Riga</source>
        <translation>Fila</translation>
    </message>
    <message>
        <source>da</source>
        <translation>de</translation>
    </message>
    <message>
        <source>Prima riga della selezione</source>
        <translation>Primera fila de la selección</translation>
    </message>
    <message>
        <source>a</source>
        <translation>a</translation>
    </message>
    <message>
        <source>Ultima riga della selezione</source>
        <translation>Última fila de la selección</translation>
    </message>
    <message>
        <source>Colonna</source>
        <translation>Columna</translation>
    </message>
    <message>
        <source>Prima colonna della selezione</source>
        <translation>Primera columna de la selección</translation>
    </message>
    <message>
        <source>Ultima colonna della selezione</source>
        <translation>Última columna de la selección</translation>
    </message>
    <message>
        <source>Spunta le celle della selezione</source>
        <translation>Marcar las casillas de la selección</translation>
    </message>
    <message>
        <source>Riempi</source>
        <translation>Llenar</translation>
    </message>
    <message>
        <source>Toglie la spunta dalle celle della selezione</source>
        <translation>Desmarcar las casillas de la selección</translation>
    </message>
    <message>
        <source>Svuota</source>
        <translation>Vaciar</translation>
    </message>
    <message>
        <source>Inverte la spunta delle celle della selezione</source>
        <translation>Invertir las marcas de las casillas de la selección</translation>
    </message>
    <message>
        <source>Inverti</source>
        <translation>Invertir</translation>
    </message>
    <message>
        <source>Tipo delle celle</source>
        <translation>Tipo de las casillas</translation>
    </message>
    <message>
        <source>Celle con un numero</source>
        <translation>Casillas con un número</translation>
    </message>
    <message>
        <source>Numero</source>
        <translation>Número</translation>
    </message>
    <message>
        <source>Celle con un testo</source>
        <translation>Casillas con un texto</translation>
    </message>
    <message>
        <source>Testo</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Celle con un&apos;immagine</source>
        <translation>Casillas con una imagen</translation>
    </message>
    <message>
        <source>Immagine</source>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>&lt;p&gt;Imposta il tipo delle celle selezionate sopra!&lt;/p&gt;&lt;p&gt;Per cambiare le singole celle usare il tasto destro del mouse su di esse.&lt;/p&gt;</source>
        <translation>&lt;p&gt;¡Establecer el tipo de las casillas seleccionadas arriba!&lt;/p&gt;&lt;p&gt;Para cambiar una sola casilla, haga clic en ella con el botón derecho del ratón.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Imposta selezionate</source>
        <translation>Aplicar a la selección</translation>
    </message>
    <message>
        <source>Schema corrente</source>
        <translation>Diseño actual</translation>
    </message>
    <message>
        <source>da pag.</source>
        <translation>de la pág.</translation>
    </message>
    <message>
        <source>Prima pagina su cui copiare lo schema</source>
        <translation>Primera página en la que copiar el diseño</translation>
    </message>
    <message>
        <source>Ultima pagina su cui copiare lo schema</source>
        <translation>Última página en la que copiar el diseño</translation>
    </message>
    <message>
        <source>Copia lo schema su tutte le pagine</source>
        <translation>Copiar el diseño en todas las páginas</translation>
    </message>
    <message>
        <source>tutte</source>
        <translation>todas</translation>
    </message>
    <message>
        <source>Copia lo schema della pagina mostrata sulle pagine indicate</source>
        <translation>Copiar el diseño de la página mostrada en las páginas indicadas</translation>
    </message>
    <message>
        <source>Copia</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Crea le pagine e le aggiunge alla cartella</source>
        <translation>Crear las páginas y añadirlas a la serie de cartones</translation>
    </message>
    <message>
        <source>Crea pagine</source>
        <translation>Crear páginas</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Nuovo</source>
        <translation>Nuevo</translation>
    </message>
    <message>
        <source>Per iniziare una nuova mappatura chiudere questa finestra e riaprirla dalla finestra principale</source>
        <translation>Para empezar un nuevo diseño, cierre esta ventana y vuelva a abrirla desde la ventana principal</translation>
    </message>
    <message>
        <source>Apri</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Apre uno schema di pagine da file</source>
        <translation>Abrir un diseño de páginas desde un archivo</translation>
    </message>
    <message>
        <source>Salva</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>&lt;p&gt;Salva lo schema delle pagine su file. Una pagina con più di 255 celle non può essere riletta per intero e l&apos;opzione &quot;Ordina numeri sulle colonne&quot; non viene salvata.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Guardar el diseño de las páginas en un archivo. Una página con más de 255 casillas no se puede volver a leer entera, y la opción «Extraer números por columnas» no se guarda.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Esci</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Chiude la mappatura manuale</source>
        <translation>Cerrar el diseño manual</translation>
    </message>
    <message>
        <source>Mappatura manuale</source>
        <translation>Diseño manual</translation>
    </message>
    <message>
        <source>Non vi sono pagine da creare!</source>
        <translation>¡No hay páginas que crear!</translation>
    </message>
    <message>
        <source>MAPPATURA MANUALE</source>
        <translation>DISEÑO MANUAL</translation>
    </message>
    <message>
        <source>Tipo cambiato in: %1</source>
        <translation>Tipo cambiado a: %1</translation>
    </message>
    <message>
        <source>I numeri da generare (%1) sono maggiori di quelli disponibili (%2).</source>
        <translation>Hay más números por generar (%1) que disponibles (%2).</translation>
    </message>
    <message>
        <source>Impostazioni corrette</source>
        <translation>Configuración correcta</translation>
    </message>
    <message>
        <source>Le pagine selezionate verranno sovrascritte con lo schema corrente. Proseguire?</source>
        <translation>Las páginas elegidas se sobrescribirán con el diseño actual. ¿Continuar?</translation>
    </message>
    <message>
        <source>Copia schema effettuata!</source>
        <translation>¡Diseño copiado!</translation>
    </message>
    <message>
        <source>Pagine create e aggiunte alla cartella principale!</source>
        <translation>¡Páginas creadas y añadidas a la serie de cartones!</translation>
    </message>
    <message>
        <source>Errore durante la creazione delle pagine!

%1</source>
        <translation>¡Error al crear las páginas!

%1</translation>
    </message>
    <message>
        <source>Sei sicuro di voler chiudere?</source>
        <translation>¿Seguro que desea cerrar la ventana?</translation>
    </message>
    <message>
        <source>Salva le cartelle su file</source>
        <translation>Guardar el diseño en un archivo</translation>
    </message>
    <message>
        <source>Creazione file annullata!</source>
        <translation>¡Creación del archivo cancelada!</translation>
    </message>
    <message>
        <source>Pagina %1 di %2 salvata</source>
        <translation>Página %1 de %2 guardada</translation>
    </message>
    <message>
        <source>File creato con successo!

Nome: %1
Estensione: %2
Percorso: %3

Pagine: %4
Dimensione: %5 Bytes (%6 MB)
</source>
        <translation>¡Archivo creado correctamente!

Nombre: %1
Extensión: %2
Ruta: %3

Páginas: %4
Tamaño: %5 bytes (%6 MB)
</translation>
    </message>
    <message>
        <source>Aprendo un nuovo progetto tutto il lavoro in corso di modifica sarà perso. Proseguire?</source>
        <translation>Al abrir otro diseño se perderá todo el trabajo en curso. ¿Continuar?</translation>
    </message>
    <message>
        <source>Apre un file di cartelle</source>
        <translation>Abrir un archivo de diseño</translation>
    </message>
    <message>
        <source>Apertura file annullata!</source>
        <translation>¡Apertura del archivo cancelada!</translation>
    </message>
    <message>
        <source>Sto leggendo la pagina %1</source>
        <translation>Leyendo la página %1</translation>
    </message>
    <message>
        <source>Apertura completata!</source>
        <translation>¡Archivo abierto!</translation>
    </message>
    <message>
        <source>Sto caricando la pagina %1 di %2</source>
        <translation>Cargando la página %1 de %2</translation>
    </message>
    <message>
        <source>Salva lo schema delle pagine su file</source>
        <translation>Guardar el diseño de las páginas en un archivo</translation>
    </message>
    <message>
        <source>Errore nel salvataggio del file:
%1

%2</source>
        <translation>Error al guardar el archivo:
%1

%2</translation>
    </message>
    <message>
        <source>Non è un file di cartelle:
%1</source>
        <translation>No es un archivo de diseño:
%1</translation>
    </message>
    <message>
        <source>Errore nella lettura del file:
%1

%2</source>
        <translation>Error al leer el archivo:
%1

%2</translation>
    </message>
    <message>
        <source>Nessuna riga del file descrive una pagina.</source>
        <translation>Ninguna línea del archivo describe una página.</translation>
    </message>
    <message>
        <source>Non vi sono pagine.
%1</source>
        <translation>No hay páginas.
%1</translation>
    </message>
    <message>
        <source>Le pagine con troppe celle non saranno rilette per intero dal file.
Pagine: %1</source>
        <translation>Las páginas con demasiadas casillas no se podrán volver a leer enteras.
Páginas: %1</translation>
    </message>
    <message>
        <source>&lt;p&gt;I numeri spuntati e quelli disponibili. Cambiando pagina il conteggio prosegue da quello di prima, finché non si cambia un tipo o si copia uno schema.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Los números marcados y los disponibles. Al cambiar de página la cuenta sigue desde la anterior, hasta que se cambia un tipo o se copia un diseño.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;Un clic o la barra spaziatrice mette o toglie la spunta; trascinando il mouse con il tasto sinistro premuto si spuntano le celle attraversate.&lt;/p&gt;&lt;p&gt;Il tasto destro del mouse o il tasto T passa al tipo successivo, tranne che nelle pagine lette da un file.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Un clic o la barra espaciadora marca o desmarca una casilla; al arrastrar con el botón izquierdo del ratón se marcan las casillas por las que se pasa.&lt;/p&gt;&lt;p&gt;El botón derecho del ratón o la tecla T pasa al tipo siguiente, salvo en las páginas leídas de un archivo.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Numeri: %1 di %2</source>
        <translation>Números: %1 de %2</translation>
    </message>
    <message>
        <source>Le pagine totali richieste (%1)
eccedono il massimo consentito (%2).</source>
        <translation>El total de páginas solicitadas (%1)
supera el máximo permitido (%2).</translation>
    </message>
    <message>
        <source>Aiuto</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Manuale</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>Come si usa il programma, passo per passo</source>
        <translation>Cómo se usa el programa, paso a paso</translation>
    </message>
    <message>
        <source>Copia schema annullata!</source>
        <translation>¡Copia del diseño cancelada!</translation>
    </message>
</context>
<context>
    <name>ElencoSchede</name>
    <message>
        <source>%1: chiamata %2</source>
        <translation>%1: bola %2</translation>
    </message>
    <message>
        <source>%1: manca il %2</source>
        <translation>%1: falta el %2</translation>
    </message>
</context>
<context>
    <name>FormatSelection</name>
    <message>
        <source>Dialog</source>
        <translation>Diálogo</translation>
    </message>
    <message>
        <source>Seleziona la lingua:</source>
        <translation>Seleccione el idioma:</translation>
    </message>
    <message>
        <source>&lt;p&gt;Lingua del programma fino alla chiusura e dei commenti nelle impostazioni; ai prossimi avvii vale la lingua del sistema&lt;/p&gt;</source>
        <translation>&lt;p&gt;Idioma del programa hasta cerrarlo y de los comentarios de la configuración; después se usa el idioma del sistema&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Impostazioni di default: </source>
        <translation>Configuración predeterminada: </translation>
    </message>
    <message>
        <source>Impostazioni di default</source>
        <translation>Configuración predeterminada</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Generatore di cartelle per la Quintra.</source>
        <translation>Generador de cartones para la Quintra.</translation>
    </message>
    <message>
        <source>Numeri - Minimo</source>
        <translation>Números - Mínimo</translation>
    </message>
    <message>
        <source>Numeri - Massimo</source>
        <translation>Números - Máximo</translation>
    </message>
    <message>
        <source>Classica - Numero blocchi</source>
        <translation>Clásica - Cartones por página</translation>
    </message>
    <message>
        <source>Classica - Numero righe per blocco</source>
        <translation>Clásica - Filas por cartón</translation>
    </message>
    <message>
        <source>Classica - Numero estrazioni per riga</source>
        <translation>Clásica - Casillas llenas por fila</translation>
    </message>
    <message>
        <source>Classica - Numero colonne</source>
        <translation>Clásica - Columnas</translation>
    </message>
    <message>
        <source>Classica - Numero jolly per riga</source>
        <translation>Clásica - Imágenes (comodines) por fila</translation>
    </message>
    <message>
        <source>Testo di base nelle celle</source>
        <translation>Texto predeterminado en las casillas</translation>
    </message>
    <message>
        <source>Immagine di base nelle celle</source>
        <translation>Imagen predeterminada en las casillas</translation>
    </message>
    <message>
        <source>Directory di base dove salvare</source>
        <translation>Carpeta predeterminada para guardar</translation>
    </message>
    <message>
        <source>Lingua di default</source>
        <translation>Idioma predeterminado</translation>
    </message>
    <message>
        <source>Configurazione</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Impossibile commentare il file, formato errato!</source>
        <translation>¡No se pueden añadir los comentarios al archivo: formato incorrecto!</translation>
    </message>
    <message>
        <source>Continua con queste impostazioni</source>
        <translation>Continuar con esta configuración</translation>
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
        <translation>¡No hay páginas que generar!</translation>
    </message>
    <message>
        <source>Nessun numero generato!</source>
        <translation>¡No se ha generado ningún número!</translation>
    </message>
    <message>
        <source>Genera per colonne:
Impossibile generare %1 numeri sulla colonna n^ %2
La colonna vorrebbe %3 numeri diversi tra %4 e %5
ma cio&apos; risulta impossibile in quanto il range e&apos; composto da %6 numeri.</source>
        <translation>Extracción de números por columnas:
Demasiados números (%1) para la columna n.º&#xa0;%2
La columna necesita esa cantidad de números distintos (%3) entre %4 y %5,
pero es imposible, ya que el intervalo tiene menos (%6).</translation>
    </message>
    <message>
        <source>Generazione numeri:
Errore durante l&apos;aggiunta della pagina %i.</source>
        <translation>Generación de números:
Error al añadir la página %i.</translation>
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
        <translation>Serie de cartones</translation>
    </message>
    <message>
        <source>Numero di pagine</source>
        <translation>Número de páginas</translation>
    </message>
    <message>
        <source>Numero totale di pagine (cartelle)</source>
        <translation>Número total de páginas (hojas de cartones)</translation>
    </message>
    <message>
        <source>Numero di blocchi per pagina</source>
        <translation>Cartones por página</translation>
    </message>
    <message>
        <source>Numero di righe per blocco</source>
        <translation>Filas por cartón</translation>
    </message>
    <message>
        <source>Numero di colonne</source>
        <translation>Columnas</translation>
    </message>
    <message>
        <source>Numero di celle (colonne) per riga</source>
        <translation>Número de casillas (columnas) por fila</translation>
    </message>
    <message>
        <source>Celle di ogni riga</source>
        <translation>Casillas de cada fila</translation>
    </message>
    <message>
        <source>Numero di estrazioni per riga</source>
        <translation>Casillas llenas por fila</translation>
    </message>
    <message>
        <source>Numero di celle da riempire (numeri,immagini,scritte) in ogni riga</source>
        <translation>Número de casillas que llenar (números, imágenes, textos) en cada fila</translation>
    </message>
    <message>
        <source>Numero di immagini per riga</source>
        <translation>Imágenes por fila</translation>
    </message>
    <message>
        <source>Inserisci delle immagini al posto dei numeri nelle celle</source>
        <translation>Poner imágenes (comodines) en lugar de números en las casillas</translation>
    </message>
    <message>
        <source>Numero di scritte per riga</source>
        <translation>Textos por fila</translation>
    </message>
    <message>
        <source>Inserisci del testo al posto dei numeri nelle celle</source>
        <translation>Poner texto en lugar de números en las casillas</translation>
    </message>
    <message>
        <source>Numeri da estrarre</source>
        <translation>Números por extraer</translation>
    </message>
    <message>
        <source>Numero minimo da estrarre</source>
        <translation>Número más bajo</translation>
    </message>
    <message>
        <source>Numero massimo da estrarre</source>
        <translation>Número más alto</translation>
    </message>
    <message>
        <source>Disegna a mano quali celle riempire, pagina per pagina</source>
        <translation>Elegir a mano qué casillas llenar, página por página</translation>
    </message>
    <message>
        <source>Mappatura manuale</source>
        <translation>Diseño manual</translation>
    </message>
    <message>
        <source>Crea le pagine richieste e le aggiunge alla cartella</source>
        <translation>Crear las páginas solicitadas y añadirlas a la serie de cartones</translation>
    </message>
    <message>
        <source>Aggiungi pagine</source>
        <translation>Añadir páginas</translation>
    </message>
    <message>
        <source>Stampa la cartella su file</source>
        <translation>Imprimir la serie de cartones en un archivo</translation>
    </message>
    <message>
        <source>STAMPA</source>
        <translation>IMPRIMIR</translation>
    </message>
    <message>
        <source>Pagina</source>
        <translation>Página</translation>
    </message>
    <message>
        <source>Pagina visualizzata</source>
        <translation>Página mostrada</translation>
    </message>
    <message>
        <source>di</source>
        <translation>de</translation>
    </message>
    <message>
        <source>Numero di pagine della cartella</source>
        <translation>Número de páginas de la serie de cartones</translation>
    </message>
    <message>
        <source>Elimina la pagina visualizzata</source>
        <translation>Eliminar la página mostrada</translation>
    </message>
    <message>
        <source>Elimina</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Formato</source>
        <translation>Formato de papel</translation>
    </message>
    <message>
        <source>Formato della carta su cui stampare</source>
        <translation>Formato del papel en el que imprimir</translation>
    </message>
    <message>
        <source>Spazio tra i blocchi (mm)</source>
        <translation>Espacio entre cartones (mm)</translation>
    </message>
    <message>
        <source>Spazio tra i blocchi della pagina, in millimetri</source>
        <translation>Espacio entre los cartones de la página, en milímetros</translation>
    </message>
    <message>
        <source>I comandi di pagina e di blocco agiscono su tutte le pagine</source>
        <translation>Los comandos de página y de cartón actúan sobre todas las páginas</translation>
    </message>
    <message>
        <source>Applica a tutte</source>
        <translation>Aplicar a todas</translation>
    </message>
    <message>
        <source>Imposta lo spazio tra i blocchi</source>
        <translation>Establecer el espacio entre los cartones</translation>
    </message>
    <message>
        <source>Applica</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Colori</source>
        <translation>Colores</translation>
    </message>
    <message>
        <source>Colore di sfondo della pagina</source>
        <translation>Color de fondo de la página</translation>
    </message>
    <message>
        <source>Colora sfondo</source>
        <translation>Color de fondo</translation>
    </message>
    <message>
        <source>Blocco</source>
        <translation>Cartón</translation>
    </message>
    <message>
        <source>Blocco selezionato</source>
        <translation>Cartón seleccionado</translation>
    </message>
    <message>
        <source>Blocchi della pagina</source>
        <translation>Cartones de la página</translation>
    </message>
    <message>
        <source>Spessore linea esterna</source>
        <translation>Grosor del contorno</translation>
    </message>
    <message>
        <source>Spessore della linea esterna del blocco (non ha ancora effetto)</source>
        <translation>Grosor del contorno del cartón (aún sin efecto)</translation>
    </message>
    <message>
        <source>Spessore linea interna</source>
        <translation>Grosor de la cuadrícula</translation>
    </message>
    <message>
        <source>Spessore delle linee interne del blocco (non ha ancora effetto)</source>
        <translation>Grosor de la cuadrícula del cartón (aún sin efecto)</translation>
    </message>
    <message>
        <source>I comandi di blocco agiscono su tutti i blocchi</source>
        <translation>Los comandos de cartón actúan sobre todos los cartones</translation>
    </message>
    <message>
        <source>Applica a tutti</source>
        <translation>Aplicar a todos</translation>
    </message>
    <message>
        <source>Applica le impostazioni del blocco (non ha ancora effetto)</source>
        <translation>Aplicar la configuración del cartón (aún sin efecto)</translation>
    </message>
    <message>
        <source>Colore di sfondo delle celle del blocco</source>
        <translation>Color de fondo de las casillas del cartón</translation>
    </message>
    <message>
        <source>Colore della linea esterna del blocco (non ha ancora effetto)</source>
        <translation>Color del contorno del cartón (aún sin efecto)</translation>
    </message>
    <message>
        <source>Colore delle linee interne del blocco (non ha ancora effetto)</source>
        <translation>Color de la cuadrícula del cartón (aún sin efecto)</translation>
    </message>
    <message>
        <source>Cella</source>
        <translation>Casilla</translation>
    </message>
    <message>
        <source>Riga</source>
        <translation>Fila</translation>
    </message>
    <message>
        <source>Riga della cella nel suo blocco</source>
        <translation>Fila de la casilla en su cartón</translation>
    </message>
    <message>
        <source>Colonna</source>
        <translation>Columna</translation>
    </message>
    <message>
        <source>Colonna della cella</source>
        <translation>Columna de la casilla</translation>
    </message>
    <message>
        <source>Tipo della cella</source>
        <translation>Tipo de la casilla</translation>
    </message>
    <message>
        <source>Carattere delle celle selezionate</source>
        <translation>Fuente de las casillas seleccionadas</translation>
    </message>
    <message>
        <source>Carattere...</source>
        <translation>Fuente...</translation>
    </message>
    <message>
        <source>Carattere della cella</source>
        <translation>Fuente de la casilla</translation>
    </message>
    <message>
        <source>Sceglie l&apos;immagine della cella selezionata</source>
        <translation>Elegir la imagen de la casilla seleccionada</translation>
    </message>
    <message>
        <source>I comandi di cella agiscono sulle stesse celle di tutte le pagine</source>
        <translation>Los comandos de casilla actúan sobre las mismas casillas de todas las páginas</translation>
    </message>
    <message>
        <source>Applica le impostazioni della cella (non ha ancora effetto)</source>
        <translation>Aplicar la configuración de la casilla (aún sin efecto)</translation>
    </message>
    <message>
        <source>Colore del testo delle celle selezionate</source>
        <translation>Color del texto de las casillas seleccionadas</translation>
    </message>
    <message>
        <source>Colora testo</source>
        <translation>Color del texto</translation>
    </message>
    <message>
        <source>Colore di sfondo delle celle selezionate</source>
        <translation>Color de fondo de las casillas seleccionadas</translation>
    </message>
    <message>
        <source>Pulisci</source>
        <translation>Limpiar</translation>
    </message>
    <message>
        <source>Apri</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Le mappature si aprono dall&apos;editor della mappatura manuale</source>
        <translation>Los diseños se abren desde el editor de diseño manual</translation>
    </message>
    <message>
        <source>Salva</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Le mappature si salvano dall&apos;editor della mappatura manuale</source>
        <translation>Los diseños se guardan desde el editor de diseño manual</translation>
    </message>
    <message>
        <source>Nuova</source>
        <translation>Nueva</translation>
    </message>
    <message>
        <source>Crea una nuova cartella</source>
        <translation>Crear una nueva serie de cartones</translation>
    </message>
    <message>
        <source>Esci</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Esce dal programma</source>
        <translation>Salir del programa</translation>
    </message>
    <message>
        <source>Confronta blocchi</source>
        <translation>Comparar cartones</translation>
    </message>
    <message>
        <source>Verifica che non vi siano blocchi uguali</source>
        <translation>Comprobar que no haya cartones iguales</translation>
    </message>
    <message>
        <source>Opzioni</source>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>Impostazioni del programma</source>
        <translation>Configuración del programa</translation>
    </message>
    <message>
        <source>Informazioni</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Informazioni sul programma</source>
        <translation>Acerca del programa</translation>
    </message>
    <message>
        <source>Welcome to %1 %2!</source>
        <translation>¡Le damos la bienvenida a %1 %2!</translation>
    </message>
    <message>
        <source>La cartella non contiene pagine!</source>
        <translation>¡La serie de cartones no contiene páginas!</translation>
    </message>
    <message>
        <source>Aggiungere pagine alla cartella prima di proseguire.</source>
        <translation>Añada páginas a la serie de cartones antes de continuar.</translation>
    </message>
    <message>
        <source>Creazione file annullata!</source>
        <translation>¡Creación del archivo cancelada!</translation>
    </message>
    <message>
        <source>Errore nella creazione del file:
%1</source>
        <translation>Error al crear el archivo:
%1</translation>
    </message>
    <message>
        <source>Salva le cartelle su file</source>
        <translation>Guardar los cartones en un archivo</translation>
    </message>
    <message>
        <source>Cartella classica</source>
        <translation>Serie clásica</translation>
    </message>
    <message>
        <source>Sei sicuro di voler uscire?</source>
        <translation>¿Seguro que desea salir?</translation>
    </message>
    <message>
        <source>Generatore di cartelle per la Quintra.
Advanced Bingo cards generator.</source>
        <translation>Generador de cartones para la Quintra.
Generador avanzado de cartones de bingo.</translation>
    </message>
    <message>
        <source>Modifica valori</source>
        <translation>Modificar valores</translation>
    </message>
    <message>
        <source>Errore durante la modifica del valore nella tabella.</source>
        <translation>Error al modificar el valor en la tabla.</translation>
    </message>
    <message>
        <source>Problema durante la modifica del valore nella tabella.</source>
        <translation>Problema al modificar el valor en la tabla.</translation>
    </message>
    <message>
        <source>Vuoi impostare il valore come STRINGA?</source>
        <translation>¿Desea guardar el valor como TEXTO?</translation>
    </message>
    <message>
        <source>Vuoi impostare il valore come CELLA VUOTA?</source>
        <translation>¿Desea dejar la CASILLA VACÍA?</translation>
    </message>
    <message>
        <source>Cella impostata come IMMAGINE.
Il percorso dell&apos;immagine deve essere scelto tramite il pannello a lato.</source>
        <translation>La casilla es ahora una IMAGEN.
Elija su archivo en el panel lateral.</translation>
    </message>
    <message>
        <source>L&apos;immagine per la cella selezionata è quella visibile. La si vuole Cambiare?</source>
        <translation>La imagen mostrada es la de la casilla seleccionada. ¿Desea cambiarla?</translation>
    </message>
    <message>
        <source>Apre un&apos;immagine da inserire nella cella</source>
        <translation>Abrir una imagen para la casilla</translation>
    </message>
    <message>
        <source>JPEG (*.jpg *.jpeg);; TIFF (*.tif);; PNG (*.png);; GIF (*.gif);; BITMAP (*.bmp)</source>
        <translation>JPEG (*.jpg *.jpeg);; TIFF (*.tif);; PNG (*.png);; GIF (*.gif);; BITMAP (*.bmp)</translation>
    </message>
    <message>
        <source>L&apos;immagine per la cella selezionata è quella visisbile. Proseguire?</source>
        <translation>La imagen mostrada será la de la casilla seleccionada. ¿Continuar?</translation>
    </message>
    <message>
        <source>Immagine impostata correttamente.</source>
        <translation>Imagen cambiada correctamente.</translation>
    </message>
    <message>
        <source>Selezione immagine cella</source>
        <translation>Elección de la imagen de la casilla</translation>
    </message>
    <message>
        <source>Sei sicuro di voler cancellare la cartella e crearne una nuova?</source>
        <translation>¿Seguro que desea eliminar la serie de cartones y crear una nueva?</translation>
    </message>
    <message>
        <source>Creazione annullata.</source>
        <translation>Creación cancelada.</translation>
    </message>
    <message>
        <source>Cartella di %1 pagine, %2 blocchi %3X%4 generata</source>
        <translation>Serie de cartones generada - páginas: %1, cartones por página: %2 (%3×%4)</translation>
    </message>
    <message>
        <source>Problemi di impostazione parametri: non posso proseguire!</source>
        <translation>¡Problemas con los parámetros: no se puede continuar!</translation>
    </message>
    <message>
        <source>%1

Vuoi proseguire comunque?</source>
        <translation>%1

¿Desea continuar de todos modos?</translation>
    </message>
    <message>
        <source>Sto cancellando la precedente cartella...</source>
        <translation>Eliminando la serie anterior...</translation>
    </message>
    <message>
        <source>Sto creando una cartella di %1 pagine, %2 blocchi %3X%4...</source>
        <translation>Creando una serie de cartones - páginas: %1, cartones por página: %2 (%3×%4)...</translation>
    </message>
    <message>
        <source>Generazione numeri:
Errore durante l&apos;aggiunta della pagina %i.</source>
        <translation>Generación de números:
Error al añadir la página %i.</translation>
    </message>
    <message>
        <source>Sono state create solo pagine vuote!</source>
        <translation>¡Solo se han creado páginas vacías!</translation>
    </message>
    <message>
        <source>Generazione numeri:
Errore durante la generazione della pagina %1.</source>
        <translation>Generación de números:
Error al generar la página %1.</translation>
    </message>
    <message>
        <source>Sto creando l&apos;ambiente per la mappatura manuale, attendere...</source>
        <translation>Preparando el diseño manual, espere...</translation>
    </message>
    <message>
        <source>Ambiente per la mappatura manuale creato.</source>
        <translation>Diseño manual preparado.</translation>
    </message>
    <message>
        <source>Celle della pagina</source>
        <translation>Casillas de la página</translation>
    </message>
    <message>
        <source>La cartella non contiene la pagina da visualizzare (fuori range)!</source>
        <translation>¡La serie de cartones no contiene la página que mostrar (fuera de rango)!</translation>
    </message>
    <message>
        <source>Cartella vuota!</source>
        <translation>¡Serie de cartones vacía!</translation>
    </message>
    <message>
        <source>La cartella è vuota!</source>
        <translation>¡La serie de cartones está vacía!</translation>
    </message>
    <message>
        <source>Problema nell&apos;eliminazione della pagina!
Pagina non eliminata.</source>
        <translation>¡Problema al eliminar la página!
Página no eliminada.</translation>
    </message>
    <message>
        <source>Pagina eliminata correttamente.</source>
        <translation>Página eliminada correctamente.</translation>
    </message>
    <message>
        <source>Nessuna selezione</source>
        <translation>Sin selección</translation>
    </message>
    <message>
        <source>Cella mancante</source>
        <translation>Casilla inexistente</translation>
    </message>
    <message>
        <source>Cella selezionata</source>
        <translation>Casilla seleccionada</translation>
    </message>
    <message>
        <source>Selezione multipla</source>
        <translation>Selección múltiple</translation>
    </message>
    <message>
        <source>Impostazioni corrette</source>
        <translation>Configuración correcta</translation>
    </message>
    <message>
        <source>Estrazioni per riga: Per un corretto funzionamento si consiglia il valore 5.</source>
        <translation>Casillas llenas por fila: para un funcionamiento correcto se recomienda el valor 5.</translation>
    </message>
    <message>
        <source>Nessun elemento selezionato!</source>
        <translation>¡Ningún elemento seleccionado!</translation>
    </message>
    <message>
        <source>Modifica colore sfondo blocchi applicata.</source>
        <translation>Color de fondo de los cartones modificado.</translation>
    </message>
    <message>
        <source>Modifica colore testo cella applicata.</source>
        <translation>Color del texto de la casilla modificado.</translation>
    </message>
    <message>
        <source>Modifica colore sfondo cella applicata.</source>
        <translation>Color de fondo de la casilla modificado.</translation>
    </message>
    <message>
        <source>Attenzione</source>
        <translation>Atención</translation>
    </message>
    <message>
        <source>Errore: Le pagine hanno dimensioni diverse.
Alcune celle sono state omesse!</source>
        <translation>Error: las páginas tienen tamaños distintos.
¡Se han omitido algunas casillas!</translation>
    </message>
    <message>
        <source>Modifica applicata.</source>
        <translation>Modificación aplicada.</translation>
    </message>
    <message>
        <source>Font impostato correttamente.</source>
        <translation>Fuente aplicada correctamente.</translation>
    </message>
    <message>
        <source>Verifica blocchi uguali:
Pagine cartella non ancora generate.
Impossibile procedere alla verifica!</source>
        <translation>Comprobación de cartones iguales:
Aún no se han generado las páginas de la serie.
¡No se puede realizar la comprobación!</translation>
    </message>
    <message>
        <source>Non vi sono blocchi uguali!

%1</source>
        <translation>¡No hay cartones iguales!

%1</translation>
    </message>
    <message>
        <source>Vi sono %1 blocchi uguali!

%2

Vuoi visualizzarli?</source>
        <translation>¡Cartones iguales encontrados: %1!

%2

¿Desea verlos?</translation>
    </message>
    <message>
        <source>... e altre coppie di blocchi uguali: %1.</source>
        <translation>... y más parejas de cartones iguales: %1.</translation>
    </message>
    <message>
        <source>Anteprima di stampa</source>
        <translation>Vista previa de impresión</translation>
    </message>
    <message>
        <source>Mostra la pagina come sarà stampata</source>
        <translation>Mostrar la página tal como se imprimirá</translation>
    </message>
    <message>
        <source>Parametri</source>
        <translation>Parámetros</translation>
    </message>
    <message>
        <source>Stile</source>
        <translation>Estilo</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Visualizza</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Strumenti</source>
        <translation>&amp;Herramientas</translation>
    </message>
    <message>
        <source>&amp;Aiuto</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>Per ricominciare da capo scegliere &quot;Nuova&quot;</source>
        <translation>Para empezar de nuevo, elija «Nueva»</translation>
    </message>
    <message>
        <source>Linea esterna</source>
        <translation>Contorno</translation>
    </message>
    <message>
        <source>Linea interna</source>
        <translation>Cuadrícula</translation>
    </message>
    <message>
        <source>Salva registro...</source>
        <translation>Guardar registro...</translation>
    </message>
    <message>
        <source>Salva le schede in un file di testo, una per riga</source>
        <translation>Guardar los cartones en un archivo de texto, uno por línea</translation>
    </message>
    <message>
        <source>Serata...</source>
        <translation>Noche de bingo...</translation>
    </message>
    <message>
        <source>Chiama i numeri e controlla le schede</source>
        <translation>Cantar los números y comprobar los cartones</translation>
    </message>
    <message>
        <source>Salva il registro su file</source>
        <translation>Guardar el registro en un archivo</translation>
    </message>
    <message>
        <source>Registro salvato.</source>
        <translation>Registro guardado.</translation>
    </message>
    <message>
        <source>L&apos;immagine di base non può essere letta:
%1

Le celle con immagine resteranno vuote in stampa.</source>
        <translation>No se puede leer la imagen predeterminada:
%1

Las casillas con imagen se imprimirán vacías.</translation>
    </message>
    <message>
        <source>Stampa non riuscita!</source>
        <translation>¡La impresión ha fallado!</translation>
    </message>
    <message>
        <source>Pagine non stampate dopo l&apos;ultima modifica: %1.</source>
        <translation>Páginas no impresas desde el último cambio: %1.</translation>
    </message>
    <message>
        <source>Tutte le pagine sono state stampate dopo l&apos;ultima modifica.</source>
        <translation>Todas las páginas se han impreso desde el último cambio.</translation>
    </message>
    <message>
        <source>Lo spazio tra i blocchi è troppo grande per il foglio: le cartelle escono dalla pagina.
Pagine: %1</source>
        <translation>El espacio entre los cartones es demasiado grande para el papel: los cartones se salen de la página.
Páginas: %1</translation>
    </message>
    <message>
        <source>Il colore delle linee non ha ancora effetto!</source>
        <translation>¡El color de las líneas aún no tiene efecto!</translation>
    </message>
    <message>
        <source>Immagine...</source>
        <translation>Imagen...</translation>
    </message>
    <message>
        <source>Generazione numeri:
Altre pagine non generate (contate da 1): %1</source>
        <translation>Generación de números:
Otras páginas no generadas (contadas desde 1): %1</translation>
    </message>
    <message>
        <source>Riassumi le altre in un solo messaggio</source>
        <translation>Resumir las demás en un solo mensaje</translation>
    </message>
    <message>
        <source>Valori di config.ini cambiati:
%1</source>
        <translation>Valores de config.ini cambiados:
%1</translation>
    </message>
    <message>
        <source>Numera i blocchi in stampa</source>
        <translation>Numerar los cartones al imprimir</translation>
    </message>
    <message>
        <source>Stampa accanto a ogni blocco il suo numero, per esempio 12.3</source>
        <translation>Imprimir junto a cada cartón su número, por ejemplo 12.3</translation>
    </message>
    <message>
        <source>Numeri di blocco non stampati per mancanza di posto: %1.</source>
        <translation>Números de cartón no impresos por falta de espacio: %1.</translation>
    </message>
    <message>
        <source>Manuale</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>Come si usa il programma, passo per passo</source>
        <translation>Cómo se usa el programa, paso a paso</translation>
    </message>
    <message>
        <source>Svuota le celle selezionate</source>
        <translation>Vaciar las casillas seleccionadas</translation>
    </message>
</context>
<context>
    <name>Manuale</name>
    <message>
        <source>Torna dove si leggeva prima</source>
        <translation>Volver a donde se leía antes</translation>
    </message>
    <message>
        <source>Indietro</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Mostra l&apos;indice del manuale</source>
        <translation>Mostrar el índice del manual</translation>
    </message>
    <message>
        <source>Indice</source>
        <translation>Índice</translation>
    </message>
    <message>
        <source>Cerca:</source>
        <translation>Buscar:</translation>
    </message>
    <message>
        <source>Testo da cercare nel manuale: Invio va al prossimo</source>
        <translation>Texto que buscar en el manual; Intro va a la siguiente aparición</translation>
    </message>
    <message>
        <source>Testo del manuale</source>
        <translation>Texto del manual</translation>
    </message>
    <message>
        <source>Cerca</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Testo non trovato!</source>
        <translation>¡Texto no encontrado!</translation>
    </message>
    <message>
        <source>Quintra - Manuale</source>
        <translation>Quintra - Manual</translation>
    </message>
    <message>
        <source>Il manuale non è in %1!</source>
        <translation>¡El manual no está en %1!</translation>
    </message>
</context>
<context>
    <name>MappingFile</name>
    <message>
        <source>nessun contenuto</source>
        <translation>sin contenido</translation>
    </message>
    <message>
        <source>il primo carattere non indica il numero di righe della pagina</source>
        <translation>el primer carácter no indica el número de filas de la página</translation>
    </message>
    <message>
        <source>caratteri insufficienti per le celle della pagina</source>
        <translation>faltan caracteres para las casillas de la página</translation>
    </message>
    <message>
        <source>oltre il numero massimo di pagine (%1)</source>
        <translation>por encima del número máximo de páginas (%1)</translation>
    </message>
    <message>
        <source>Queste righe del file non descrivono una pagina e sono state saltate:</source>
        <translation>Estas líneas del archivo no describen una página y se han omitido:</translation>
    </message>
</context>
<context>
    <name>MemoryQuestion</name>
    <message>
        <source>La memoria libera potrebbe non bastare, e il programma chiudersi.
MB necessari: %1
MB liberi: %2

Vuoi proseguire comunque?</source>
        <translation>Puede que la memoria libre no baste y que el programa se cierre inesperadamente.
MB necesarios: %1
MB libres: %2

¿Desea continuar de todos modos?</translation>
    </message>
    <message>
        <source>La memoria libera non è bastata: nulla è cambiato.</source>
        <translation>La memoria libre no ha bastado: nada ha cambiado.</translation>
    </message>
</context>
<context>
    <name>MsgArea</name>
    <message>
        <source>Area messaggi</source>
        <translation>Mensajes</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Salva</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Esci</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Testo modificato</source>
        <translation>Texto modificado</translation>
    </message>
    <message>
        <source>Vuoi uscire senza salvare?</source>
        <translation>¿Desea cerrar la ventana sin guardar?</translation>
    </message>
    <message>
        <source>Salva su file</source>
        <translation>Guardar en un archivo</translation>
    </message>
    <message>
        <source>File salvato con successo.</source>
        <translation>Archivo guardado correctamente.</translation>
    </message>
    <message>
        <source>Errore nel salvataggio del file!</source>
        <translation>¡Error al guardar el archivo!</translation>
    </message>
    <message>
        <source>Le modifiche al testo vanno perse.</source>
        <translation>Se perderán los cambios del texto.</translation>
    </message>
    <message>
        <source>Il testo non è stato toccato.</source>
        <translation>El texto no se ha modificado.</translation>
    </message>
    <message>
        <source>Testo</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Chiude la finestra</source>
        <translation>Cerrar la ventana</translation>
    </message>
</context>
<context>
    <name>NuovaPartita</name>
    <message>
        <source>Quintra - Nuova partita</source>
        <translation>Quintra - Nueva partida</translation>
    </message>
    <message>
        <source>Numeri da</source>
        <translation>Números de</translation>
    </message>
    <message>
        <source>Il numero minimo del tabellone</source>
        <translation>El número más bajo del tablero</translation>
    </message>
    <message>
        <source>a</source>
        <translation>a</translation>
    </message>
    <message>
        <source>Il numero massimo del tabellone</source>
        <translation>El número más alto del tablero</translation>
    </message>
    <message>
        <source>I numeri chiamati (%1) saranno tolti tutti.</source>
        <translation>Se retirarán todos los números cantados (%1).</translation>
    </message>
</context>
<context>
    <name>Options</name>
    <message>
        <source>Impostazioni</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Consente di ri-selezionare le opzioni al primo avvio del programma</source>
        <translation>Volver a elegir las opciones del primer inicio del programa</translation>
    </message>
    <message>
        <source>Impostazioni iniziali (per il prossimo avvio)</source>
        <translation>Configuración inicial (para el próximo inicio)</translation>
    </message>
    <message>
        <source>Azzera ed esci</source>
        <translation>Restablecer y salir</translation>
    </message>
    <message>
        <source>Azzera e continua</source>
        <translation>Restablecer y continuar</translation>
    </message>
    <message>
        <source>Modifica le impostazioni direttamente</source>
        <translation>Modificar la configuración directamente</translation>
    </message>
    <message>
        <source>Modifica diretta</source>
        <translation>Edición directa</translation>
    </message>
    <message>
        <source>Problema durante la cancellazione del file:
 %1</source>
        <translation>Problema al eliminar el archivo:
 %1</translation>
    </message>
    <message>
        <source>File di configurazione eliminato correttamente.</source>
        <translation>Archivo de configuración eliminado correctamente.</translation>
    </message>
    <message>
        <source>Proseguire con la cancellazionede del file di configurazione e l&apos;uscita dal programma?</source>
        <translation>¿Eliminar el archivo de configuración y salir del programa?</translation>
    </message>
    <message>
        <source>Proseguire con la cancellazionede del file di configurazione?</source>
        <translation>¿Eliminar el archivo de configuración?</translation>
    </message>
    <message>
        <source>Quintra - Opzioni</source>
        <translation>Quintra - Opciones</translation>
    </message>
    <message>
        <source>Le impostazioni di config.ini vanno perse.</source>
        <translation>Se perderá la configuración de config.ini.</translation>
    </message>
</context>
<context>
    <name>Overwriting</name>
    <message>
        <source>Il file esiste già:
%1

Sostituirlo?</source>
        <translation>El archivo ya existe:
%1

¿Reemplazarlo?</translation>
    </message>
</context>
<context>
    <name>PagePreview</name>
    <message>
        <source>Mostra la pagina precedente</source>
        <translation>Mostrar la página anterior</translation>
    </message>
    <message>
        <source>Precedente</source>
        <translation>Anterior</translation>
    </message>
    <message>
        <source>Mostra la pagina successiva</source>
        <translation>Mostrar la página siguiente</translation>
    </message>
    <message>
        <source>Successiva</source>
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>Ingrandimento:</source>
        <translation>Aumento:</translation>
    </message>
    <message>
        <source>Grandezza in cui la pagina è mostrata</source>
        <translation>Tamaño en que se muestra la página</translation>
    </message>
    <message>
        <source>Pagina intera</source>
        <translation>Página completa</translation>
    </message>
    <message>
        <source>Larghezza</source>
        <translation>Ancho de página</translation>
    </message>
    <message>
        <source>Pagina come sarà stampata</source>
        <translation>Página tal como se imprimirá</translation>
    </message>
    <message>
        <source>Anteprima di stampa</source>
        <translation>Vista previa de impresión</translation>
    </message>
    <message>
        <source>La cartella è vuota!</source>
        <translation>¡La serie de cartones está vacía!</translation>
    </message>
    <message>
        <source>Pagina %1 di %2, %3</source>
        <translation>Página %1 de %2, %3</translation>
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
        <translation>No se puede leer la imagen predeterminada.</translation>
    </message>
    <message>
        <source>blocco %1, riga %2, colonna %3, %4</source>
        <translation>cartón %1, fila %2, columna %3, %4</translation>
    </message>
    <message>
        <source>cella mancante</source>
        <translation>casilla inexistente</translation>
    </message>
</context>
<context>
    <name>ParameterRules</name>
    <message>
        <source>Non posso creare %1 celle piene con solo %2 numeri.</source>
        <translation>No hay bastantes números (%2) para las casillas que llenar (%1).</translation>
    </message>
    <message>
        <source>Non posso inserire %1 jolly in sole %2 colonne.</source>
        <translation>Demasiadas imágenes (%1) para el número de columnas (%2).</translation>
    </message>
    <message>
        <source>Non posso inserire %1 scritte in sole %2 colonne.</source>
        <translation>Demasiados textos (%1) para el número de columnas (%2).</translation>
    </message>
    <message>
        <source>Non posso inserire %1 scritte e immagini in sole %2 colonne.</source>
        <translation>Demasiados textos e imágenes (%1) para el número de columnas (%2).</translation>
    </message>
    <message>
        <source>Non posso inserire %1 jolly con sole %2 estrazioni.</source>
        <translation>Demasiadas imágenes (%1) para las casillas llenas por fila (%2).</translation>
    </message>
    <message>
        <source>Non posso inserire %1 scritte con sole %2 estrazioni.</source>
        <translation>Demasiados textos (%1) para las casillas llenas por fila (%2).</translation>
    </message>
    <message>
        <source>Non posso inserire %1 scritte e immagini con sole %2 estrazioni.</source>
        <translation>Demasiados textos e imágenes (%1) para las casillas llenas por fila (%2).</translation>
    </message>
    <message>
        <source>Non posso inserire %1 numeri in sole %2 colonne.</source>
        <translation>Demasiadas casillas llenas por fila (%1) para el número de columnas (%2).</translation>
    </message>
    <message>
        <source>Le pagine totali richieste (%1)
eccedono il massimo consentito (%2).</source>
        <translation>El total de páginas solicitadas (%1)
supera el máximo permitido (%2).</translation>
    </message>
    <message>
        <source>Si sconsiglia di proseguire per le seguenti ragioni:
%1 -&gt; caselle totali richieste.
%2 -&gt; caselle totali in memoria.
%3 -&gt; caselle massime gestibili.
(eventuale crash del programma)</source>
        <translation>Se desaconseja continuar por las siguientes razones:
%1 -&gt; casillas totales solicitadas.
%2 -&gt; casillas totales en memoria.
%3 -&gt; número máximo de casillas que se pueden gestionar.
(el programa podría cerrarse inesperadamente)</translation>
    </message>
    <message>
        <source>Nuova: si apre l&apos;editor della mappatura manuale</source>
        <translation>Nueva: se abre el editor de diseño manual</translation>
    </message>
    <message>
        <source>Nuova: %1 pagine × %2 blocchi = %3 blocchi</source>
        <translation>Nueva - páginas × cartones: %1 × %2 = %3</translation>
    </message>
</context>
<context>
    <name>PersonaleChkBox</name>
    <message>
        <source>Numero</source>
        <translation>Número</translation>
    </message>
    <message>
        <source>Testo</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Immagine</source>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>Vuota</source>
        <translation>Vacía</translation>
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
        <translation>Cuaterno</translation>
    </message>
    <message>
        <source>Cinquina</source>
        <translation>Línea</translation>
    </message>
    <message>
        <source>Due cinquine</source>
        <translation>Dos líneas</translation>
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
        <translation>sin contenido</translation>
    </message>
    <message>
        <source>testo troncato (file incompleto)</source>
        <translation>texto cortado (archivo incompleto)</translation>
    </message>
    <message>
        <source>troppi caratteri per una scheda</source>
        <translation>demasiados caracteres para un cartón</translation>
    </message>
    <message>
        <source>all&apos;inizio non vi sono numeri validi di pagina e di scheda</source>
        <translation>al principio no hay números válidos de página y de cartón</translation>
    </message>
    <message>
        <source>manca il segno | prima delle celle</source>
        <translation>falta el signo | antes de las casillas</translation>
    </message>
    <message>
        <source>una cella non è né un numero, né un testo tra virgolette, né la parola immagine</source>
        <translation>una casilla no es ni un número, ni un texto entre comillas, ni la palabra immagine</translation>
    </message>
    <message>
        <source>un numero è maggiore di %1</source>
        <translation>un número es mayor que %1</translation>
    </message>
    <message>
        <source>le virgolette di un testo non sono chiuse, o \ è usato male</source>
        <translation>las comillas de un texto no están cerradas, o \ está mal usado</translation>
    </message>
    <message>
        <source>righe o celle oltre il massimo di %1</source>
        <translation>filas o casillas por encima del máximo de %1</translation>
    </message>
    <message>
        <source>numeri di pagina e di scheda già usati</source>
        <translation>números de página y de cartón ya usados</translation>
    </message>
    <message>
        <source>Queste righe del registro non sono schede e sono state saltate:</source>
        <translation>Estas líneas del registro no son cartones y se han omitido:</translation>
    </message>
    <message>
        <source>Una scheda ha testi troppo lunghi.</source>
        <translation>Los textos de un cartón son demasiado largos.</translation>
    </message>
</context>
<context>
    <name>RigheSaltate</name>
    <message>
        <source>Riga %1: %2.</source>
        <translation>Línea %1: %2.</translation>
    </message>
    <message>
        <source>Righe da %1 a %2: %3.</source>
        <translation>Líneas de la %1 a la %2: %3.</translation>
    </message>
    <message>
        <source>L&apos;elenco continua fino alla riga %1.</source>
        <translation>La lista continúa hasta la línea %1.</translation>
    </message>
</context>
<context>
    <name>Serata</name>
    <message>
        <source>Quintra - Serata</source>
        <translation>Quintra - Noche de bingo</translation>
    </message>
    <message>
        <source>L&apos;ultimo numero chiamato</source>
        <translation>El último número cantado</translation>
    </message>
    <message>
        <source>I numeri chiamati prima</source>
        <translation>Los números cantados antes</translation>
    </message>
    <message>
        <source>Un clic chiama un numero, un altro lo toglie</source>
        <translation>Un clic canta un número, otro lo retira</translation>
    </message>
    <message>
        <source>Tabellone</source>
        <translation>Tablero</translation>
    </message>
    <message>
        <source>Chiamata</source>
        <translation>Bola</translation>
    </message>
    <message>
        <source>Numero</source>
        <translation>Número</translation>
    </message>
    <message>
        <source>Il numero da chiamare; se è già stato chiamato viene tolto</source>
        <translation>El número que se canta; si ya estaba cantado, se retira</translation>
    </message>
    <message>
        <source>Chiama a caso uno dei numeri rimasti</source>
        <translation>Sacar al azar uno de los números que quedan</translation>
    </message>
    <message>
        <source>Estrai</source>
        <translation>Sacar</translation>
    </message>
    <message>
        <source>Controllo di una scheda</source>
        <translation>Comprobación de un cartón</translation>
    </message>
    <message>
        <source>Scheda</source>
        <translation>Cartón</translation>
    </message>
    <message>
        <source>Pagina e scheda, per esempio 12.3</source>
        <translation>Página y cartón, por ejemplo 12.3</translation>
    </message>
    <message>
        <source>Mostra la scheda con i numeri chiamati</source>
        <translation>Mostrar el cartón con los números cantados</translation>
    </message>
    <message>
        <source>Controlla</source>
        <translation>Comprobar</translation>
    </message>
    <message>
        <source>Che cosa ha la scheda, e con quale chiamata</source>
        <translation>Lo que ha ganado el cartón, y con qué bola</translation>
    </message>
    <message>
        <source>Vincite</source>
        <translation>Premios</translation>
    </message>
    <message>
        <source>Schede</source>
        <translation>Cartones</translation>
    </message>
    <message>
        <source>Le schede con tutti i numeri chiamati</source>
        <translation>Los cartones con todos los números cantados</translation>
    </message>
    <message>
        <source>Le schede a cui manca un solo numero</source>
        <translation>Los cartones a los que solo les falta un número</translation>
    </message>
    <message>
        <source>Chiama un numero</source>
        <translation>Cantar un número</translation>
    </message>
    <message>
        <source>Controlla una scheda</source>
        <translation>Comprobar un cartón</translation>
    </message>
    <message>
        <source>Nuova partita...</source>
        <translation>Nueva partida...</translation>
    </message>
    <message>
        <source>Toglie tutti i numeri chiamati e ricomincia</source>
        <translation>Retirar todos los números cantados y volver a empezar</translation>
    </message>
    <message>
        <source>Apri registro...</source>
        <translation>Abrir registro...</translation>
    </message>
    <message>
        <source>Apre un registro</source>
        <translation>Abrir un registro</translation>
    </message>
    <message>
        <source>Schermo intero</source>
        <translation>Pantalla completa</translation>
    </message>
    <message>
        <source>Chiudi</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>immagine</source>
        <translation>imagen</translation>
    </message>
    <message>
        <source>%1: chiamata %2, numero %3</source>
        <translation>%1: bola %2, número %3</translation>
    </message>
    <message>
        <source>Nessuna vincita</source>
        <translation>Ningún premio</translation>
    </message>
    <message>
        <source>La partita non si può cominciare.</source>
        <translation>No se puede empezar la partida.</translation>
    </message>
    <message>
        <source>Nuova partita, numeri da %1 a %2.</source>
        <translation>Nueva partida, números de %1 a %2.</translation>
    </message>
    <message>
        <source>Il numero %1 non è in gioco: i numeri vanno da %2 a %3!</source>
        <translation>¡El número %1 no está en juego: los números van de %2 a %3!</translation>
    </message>
    <message>
        <source>La chiamata non si può salvare, nulla è cambiato.</source>
        <translation>No se puede guardar la bola; nada ha cambiado.</translation>
    </message>
    <message>
        <source>Chiamato il %1.</source>
        <translation>Cantado: %1.</translation>
    </message>
    <message>
        <source>Tolto il %1.</source>
        <translation>Retirado: %1.</translation>
    </message>
    <message>
        <source>Tutti i numeri sono stati chiamati!</source>
        <translation>¡Ya se han cantado todos los números!</translation>
    </message>
    <message>
        <source>Scrivere un numero da %1 a %2!</source>
        <translation>¡Escriba un número de %1 a %2!</translation>
    </message>
    <message>
        <source>Scrivere la pagina e la scheda, per esempio 12.3!</source>
        <translation>¡Escriba la página y el cartón, por ejemplo 12.3!</translation>
    </message>
    <message>
        <source>La scheda %1 non esiste!</source>
        <translation>¡No hay ningún cartón %1!</translation>
    </message>
    <message>
        <source>Scheda %1.</source>
        <translation>Cartón %1.</translation>
    </message>
    <message>
        <source>Numeri chiamati: %1 di %2</source>
        <translation>Números cantados: %1 de %2</translation>
    </message>
    <message>
        <source>In attesa di un numero: %1</source>
        <translation>A falta de un número: %1</translation>
    </message>
    <message>
        <source>Nessuna scheda</source>
        <translation>Ningún cartón</translation>
    </message>
    <message>
        <source>Scheda %1</source>
        <translation>Cartón %1</translation>
    </message>
    <message>
        <source>La serata di prima non si può mettere da parte.</source>
        <translation>No se puede apartar la noche de bingo anterior.</translation>
    </message>
    <message>
        <source>In %1 c&apos;è una serata con altre schede (numeri chiamati: %2).

Continuare quella? Con No ne comincia una nuova, e quella viene messa da parte.</source>
        <translation>Hay una noche de bingo con otros cartones (números cantados: %2) en %1.

¿Continuar esa? Con No empieza una nueva y la anterior se aparta.</translation>
    </message>
    <message>
        <source>La serata non si può salvare in %1.</source>
        <translation>No se puede guardar la noche de bingo en %1.</translation>
    </message>
    <message>
        <source>Dove salvare la serata</source>
        <translation>Carpeta de la noche de bingo</translation>
    </message>
    <message>
        <source>Il registro non si può leggere.</source>
        <translation>No se puede leer el registro.</translation>
    </message>
    <message>
        <source>Il registro non contiene schede.</source>
        <translation>El registro no contiene cartones.</translation>
    </message>
    <message>
        <source>La serata non si può salvare accanto al registro.</source>
        <translation>No se puede guardar la noche de bingo junto al registro.</translation>
    </message>
    <message>
        <source>La serata non può continuare.</source>
        <translation>La noche de bingo no puede continuar.</translation>
    </message>
    <message>
        <source>Schede: %1. Numeri da %2 a %3. Chiamati: %4.</source>
        <translation>Cartones: %1. Números de %2 a %3. Cantados: %4.</translation>
    </message>
    <message>
        <source>Questo registro è già aperto.</source>
        <translation>Este registro ya está abierto.</translation>
    </message>
    <message>
        <source>&amp;Partita</source>
        <translation>&amp;Partida</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Visualizza</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>Righe illeggibili nel file delle chiamate: %1!</source>
        <translation>¡Líneas ilegibles en el archivo de las bolas: %1!</translation>
    </message>
    <message>
        <source>Tombola: %1</source>
        <translation>Bingo: %1</translation>
    </message>
    <message>
        <source>Il file delle chiamate non si può leggere.</source>
        <translation>No se puede leer el archivo de las bolas.</translation>
    </message>
    <message>
        <source>Le chiamate di prima sono illeggibili e sono state messe da parte:
%1</source>
        <translation>Las bolas anteriores son ilegibles y se han apartado:
%1</translation>
    </message>
    <message>
        <source>Non è un file.</source>
        <translation>No es un archivo.</translation>
    </message>
    <message>
        <source>Il registro non si può leggere fino in fondo. Schede lette: %1.</source>
        <translation>El registro no se puede leer hasta el final. Cartones leídos: %1.</translation>
    </message>
    <message>
        <source>&amp;Aiuto</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>Manuale</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>Come si usa il programma, passo per passo</source>
        <translation>Cómo se usa el programa, paso a paso</translation>
    </message>
</context>
<context>
    <name>SpokenContent</name>
    <message>
        <source>numero</source>
        <translation>número</translation>
    </message>
    <message>
        <source>numero %1</source>
        <translation>número %1</translation>
    </message>
    <message>
        <source>testo</source>
        <translation>texto</translation>
    </message>
    <message>
        <source>testo %1</source>
        <translation>texto %1</translation>
    </message>
    <message>
        <source>immagine</source>
        <translation>imagen</translation>
    </message>
    <message>
        <source>vuota</source>
        <translation>vacía</translation>
    </message>
</context>
<context>
    <name>TabelloneModel</name>
    <message>
        <source>nessun numero</source>
        <translation>ningún número</translation>
    </message>
</context>
</TS>
