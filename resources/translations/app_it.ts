<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it">
<context>
    <name>AppSettingsDialog</name>
    <message>
        <source>320 kbps</source>
        <translation>320 kbit/s</translation>
    </message>
    <message>
        <source>256 kbps</source>
        <translation>256 kbit/s</translation>
    </message>
    <message>
        <source>224 kbps</source>
        <translation>224 kbit/s</translation>
    </message>
    <message>
        <source>192 kbps</source>
        <translation>192 kbit/s</translation>
    </message>
    <message>
        <source>160 kbps</source>
        <translation>160 kbit/s</translation>
    </message>
    <message>
        <source>128 kbps</source>
        <translation>128 kbit/s</translation>
    </message>
    <message>
        <source>112 kbps</source>
        <translation>112 kbit/s</translation>
    </message>
    <message>
        <source>96 kbps</source>
        <translation>96 kbit/s</translation>
    </message>
    <message>
        <source>80 kbps</source>
        <translation>80 kbit/s</translation>
    </message>
    <message>
        <source>64 kbps</source>
        <translation>64 kbit/s</translation>
    </message>
    <message>
        <source>56 kbps</source>
        <translation>56 kbit/s</translation>
    </message>
    <message>
        <source>48 kbps</source>
        <translation>48 kbit/s</translation>
    </message>
    <message>
        <source>40 kbps</source>
        <translation>40 kbit/s</translation>
    </message>
    <message>
        <source>32 kbps</source>
        <translation>32 kbit/s</translation>
    </message>
    <message>
        <source>24 kbps</source>
        <translation>24 kbit/s</translation>
    </message>
    <message>
        <source>16 kbps</source>
        <translation>16 kbit/s</translation>
    </message>
    <message>
        <source> Settings</source>
        <extracomment>Follows the name of the application in the title of the window; keep the leading blank.</extracomment>
        <translation> – Impostazioni</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>1 (Mono)</source>
        <translation>1 (mono)</translation>
    </message>
    <message>
        <source>2 (Stereo)</source>
        <translation>2 (stereo)</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Alta</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Media</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Bassa</translation>
    </message>
    <message>
        <source>BitRate</source>
        <translation>Bitrate</translation>
    </message>
    <message>
        <source>Bits per Sample:</source>
        <translation>Bit per campione:</translation>
    </message>
    <message>
        <source>Channels:</source>
        <translation>Canali:</translation>
    </message>
    <message>
        <source>Quality:</source>
        <translation>Qualità:</translation>
    </message>
    <message>
        <source>Copy meta tags (id3) from source</source>
        <translation>Copia i metadati (ID3) dall’origine</translation>
    </message>
    <message>
        <source>Copy image files from source</source>
        <translation>Copia i file immagine dall’origine</translation>
    </message>
    <message>
        <source>Copy text files from source</source>
        <translation>Copia i file di testo dall’origine</translation>
    </message>
    <message>
        <source>Copy entire non-converted content from source</source>
        <translation>Copia dall’origine tutto il contenuto non convertito</translation>
    </message>
    <message>
        <source>Preserve folder structure of the source</source>
        <translation>Mantieni la struttura delle cartelle di origine</translation>
    </message>
    <message>
        <source>Trim silence from start and end</source>
        <translation>Elimina il silenzio all’inizio e alla fine</translation>
    </message>
    <message>
        <source>Play sound</source>
        <translation>Riproduci un suono</translation>
    </message>
    <message>
        <source>Open the destination folder</source>
        <translation>Apri la cartella di destinazione</translation>
    </message>
    <message>
        <source>Clear the list</source>
        <translation>Svuota l’elenco</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Generale</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>Operazioni</translation>
    </message>
    <message>
        <source>Opens the destination folder in finder</source>
        <translation>Apre la cartella di destinazione nel gestore di file</translation>
    </message>
    <message>
        <source>Sample Rate:</source>
        <translation>Frequenza di campionamento:</translation>
    </message>
    <message>
        <source>Source / Destination Settings</source>
        <translation>Origine e destinazione</translation>
    </message>
    <message>
        <source>After Conversion</source>
        <translation>Dopo la conversione</translation>
    </message>
    <message>
        <source>WAV Settings</source>
        <translation>Impostazioni WAV</translation>
    </message>
    <message>
        <source>M4A Settings</source>
        <translation>Impostazioni M4A</translation>
    </message>
    <message>
        <source>MP3 Settings</source>
        <translation>Impostazioni MP3</translation>
    </message>
    <message>
        <source>Unknown Settings</source>
        <translation>Impostazioni sconosciute</translation>
    </message>
    <message>
        <source>Volume level normalization (in %)</source>
        <translation>Normalizzazione del volume (in %)</translation>
    </message>
    <message>
        <source>Level in percent</source>
        <translation>Livello in percentuale</translation>
    </message>
    <message>
        <source>Fade In &amp;&amp; Out (in seconds)</source>
        <extracomment>The ampersand is doubled to be shown.</extracomment>
        <translation>Dissolvenza in entrata e in uscita (in secondi)</translation>
    </message>
</context>
<context>
    <name>BatchDialog</name>
    <message>
        <source> Batch Process</source>
        <extracomment>Follows the name of the application in the title of the window; keep the leading blank.</extracomment>
        <translation> – Elaborazione in serie</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Ferma</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>One or more errors have occured!</source>
        <translation>Si sono verificati uno o più errori!</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Riprendi</translation>
    </message>
    <message>
        <source>ANALYZING</source>
        <translation>ANALISI</translation>
    </message>
    <message>
        <source>DONE</source>
        <translation>FATTO</translation>
    </message>
    <message>
        <source>NOT ENOUGH FREE SPACE</source>
        <translation>SPAZIO LIBERO INSUFFICIENTE</translation>
    </message>
    <message>
        <source>Not enough free space</source>
        <translation>Spazio libero insufficiente</translation>
    </message>
    <message>
        <source>&lt;H3&gt;Not enough free space&lt;/H3&gt;Conversion paused.&lt;br&gt;Free up space and click &quot;Resume&quot;.&lt;br&gt;To stop conversion, click &quot;Stop&quot;.</source>
        <translation>&lt;H3&gt;Spazio libero insufficiente&lt;/H3&gt;La conversione è in pausa.&lt;br&gt;Liberare spazio e fare clic su “Riprendi”.&lt;br&gt;Per terminare la conversione, fare clic su “Ferma”.</translation>
    </message>
</context>
<context>
    <name>BatchWorker</name>
    <message>
        <source>COPYING IMAGE FILES</source>
        <translation>COPIA DEI FILE IMMAGINE</translation>
    </message>
    <message>
        <source>COPYING TEXT FILES</source>
        <translation>COPIA DEI FILE DI TESTO</translation>
    </message>
    <message>
        <source>COPYING NON-CONVERTED CONTENT</source>
        <translation>COPIA DEL CONTENUTO NON CONVERTITO</translation>
    </message>
    <message>
        <source>ANALYZING</source>
        <translation>ANALISI</translation>
    </message>
    <message>
        <source>Can not convert, because the duration is to long. Please reduce the conversion sample rate and try again: </source>
        <translation>Impossibile convertire: la durata è eccessiva. Riduci la frequenza di campionamento e riprova: </translation>
    </message>
    <message>
        <source>Can not convert: </source>
        <translation>Impossibile convertire: </translation>
    </message>
</context>
<context>
    <name>DecoratedDial</name>
    <message>
        <source>min         max</source>
        <extracomment>Below the two ends of the dial; keep the distance between the words.</extracomment>
        <translation>min         max</translation>
    </message>
</context>
<context>
    <name>ErrorsDialog</name>
    <message>
        <source>ERRORS LOG</source>
        <translation>REGISTRO DEGLI ERRORI</translation>
    </message>
    <message>
        <source>Errors of the conversion</source>
        <translation>Errori di conversione</translation>
    </message>
    <message>
        <source>&amp;Ok</source>
        <translation>&amp;OK</translation>
    </message>
</context>
<context>
    <name>FadeWidget</name>
    <message>
        <source>Length of the fade-in</source>
        <translation>Durata della dissolvenza in entrata</translation>
    </message>
    <message>
        <source>Length of the fade-out</source>
        <translation>Durata della dissolvenza in uscita</translation>
    </message>
    <message>
        <source>Longer fade-in</source>
        <translation>Allunga la dissolvenza in entrata</translation>
    </message>
    <message>
        <source>Longer fade-out</source>
        <translation>Allunga la dissolvenza in uscita</translation>
    </message>
    <message>
        <source>Shorter fade-in</source>
        <translation>Accorcia la dissolvenza in entrata</translation>
    </message>
    <message>
        <source>Shorter fade-out</source>
        <translation>Accorcia la dissolvenza in uscita</translation>
    </message>
</context>
<context>
    <name>GeneralOutput</name>
    <message>
        <source>Settings error, can not create: </source>
        <translation>Errore nelle impostazioni, impossibile creare: </translation>
    </message>
    <message>
        <source>
</source>
        <translation>
</translation>
    </message>
</context>
<context>
    <name>MainPage</name>
    <message>
        <source>Click to open the folder with audio/video files</source>
        <translation>Apri una cartella con file audio/video</translation>
    </message>
    <message>
        <source>&lt;H2&gt;&lt;center&gt;Drop the audio/video files&lt;br&gt;and folders here&lt;br&gt;&lt;bold&gt;+&lt;/bold&gt;&lt;/center&gt;&lt;/H2&gt;</source>
        <translation>&lt;H2&gt;&lt;center&gt;Trascina qui i file audio/video&lt;br&gt;e le cartelle&lt;br&gt;&lt;bold&gt;+&lt;/bold&gt;&lt;/center&gt;&lt;/H2&gt;</translation>
    </message>
    <message>
        <source>Change destination folder...</source>
        <translation>Cambia cartella di destinazione…</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Ripristina</translation>
    </message>
    <message>
        <source>Destination folder</source>
        <translation>Cartella di destinazione</translation>
    </message>
    <message>
        <source>Opens the destination folder in finder</source>
        <translation>Apre la cartella di destinazione nel gestore di file</translation>
    </message>
    <message>
        <source>Open the destination folder</source>
        <translation>Apri la cartella di destinazione</translation>
    </message>
    <message>
        <source>Destination:</source>
        <translation>Destinazione:</translation>
    </message>
    <message>
        <source>Tracks</source>
        <translation>Brani</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>Converti</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Set destination folder</source>
        <translation>Scegli la cartella di destinazione</translation>
    </message>
    <message>
        <source>Files with unreadable names were left out: %1</source>
        <translation>File ignorati perché il nome è illeggibile: %1</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Errore</translation>
    </message>
    <message>
        <source>Can not access the destination folder.
Please verify the destination.</source>
        <translation>Impossibile accedere alla cartella di destinazione.
Verifica la destinazione.</translation>
    </message>
    <message>
        <source>WAITING FOR THE PREVIOUS CONVERSION</source>
        <translation>IN ATTESA DELLA CONVERSIONE PRECEDENTE</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posizione</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Ferma</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Riproduci</translation>
    </message>
    <message>
        <source>Remove from list</source>
        <translation>Rimuovi dall’elenco</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>Riproduci o metti in pausa</translation>
    </message>
    <message>
        <source>%1 media file</source>
        <translation>%1 file multimediale</translation>
    </message>
    <message>
        <source>%1 media files</source>
        <translation>%1 file multimediali</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Finishing the tags of the converted files…</source>
        <translation>Completamento dei metadati dei file convertiti…</translation>
    </message>
</context>
</TS>
