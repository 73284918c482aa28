<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
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
        <translation> – Einstellungen</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>1 (Mono)</source>
        <translation>1 (Mono)</translation>
    </message>
    <message>
        <source>2 (Stereo)</source>
        <translation>2 (Stereo)</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Hoch</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Niedrig</translation>
    </message>
    <message>
        <source>BitRate</source>
        <translation>Bitrate</translation>
    </message>
    <message>
        <source>Bits per Sample:</source>
        <translation>Bit pro Sample:</translation>
    </message>
    <message>
        <source>Channels:</source>
        <translation>Kanäle:</translation>
    </message>
    <message>
        <source>Quality:</source>
        <translation>Qualität:</translation>
    </message>
    <message>
        <source>Copy meta tags (id3) from source</source>
        <translation>Metadaten (ID3) der Quelle übernehmen</translation>
    </message>
    <message>
        <source>Copy image files from source</source>
        <translation>Bilddateien der Quelle kopieren</translation>
    </message>
    <message>
        <source>Copy text files from source</source>
        <translation>Textdateien der Quelle kopieren</translation>
    </message>
    <message>
        <source>Copy entire non-converted content from source</source>
        <translation>Alle nicht konvertierten Inhalte der Quelle kopieren</translation>
    </message>
    <message>
        <source>Preserve folder structure of the source</source>
        <translation>Ordnerstruktur der Quelle beibehalten</translation>
    </message>
    <message>
        <source>Trim silence from start and end</source>
        <translation>Stille am Anfang und Ende entfernen</translation>
    </message>
    <message>
        <source>Play sound</source>
        <translation>Signalton abspielen</translation>
    </message>
    <message>
        <source>Open the destination folder</source>
        <translation>Zielordner öffnen</translation>
    </message>
    <message>
        <source>Clear the list</source>
        <translation>Liste leeren</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>Bearbeitung</translation>
    </message>
    <message>
        <source>Opens the destination folder in finder</source>
        <translation>Öffnet den Zielordner im Dateimanager</translation>
    </message>
    <message>
        <source>Sample Rate:</source>
        <translation>Abtastrate:</translation>
    </message>
    <message>
        <source>Source / Destination Settings</source>
        <translation>Quelle und Ziel</translation>
    </message>
    <message>
        <source>After Conversion</source>
        <translation>Nach der Konvertierung</translation>
    </message>
    <message>
        <source>WAV Settings</source>
        <translation>WAV-Einstellungen</translation>
    </message>
    <message>
        <source>M4A Settings</source>
        <translation>M4A-Einstellungen</translation>
    </message>
    <message>
        <source>MP3 Settings</source>
        <translation>MP3-Einstellungen</translation>
    </message>
    <message>
        <source>Unknown Settings</source>
        <translation>Unbekannte Einstellungen</translation>
    </message>
    <message>
        <source>Volume level normalization (in %)</source>
        <translation>Pegel normalisieren (in %)</translation>
    </message>
    <message>
        <source>Level in percent</source>
        <translation>Pegel in Prozent</translation>
    </message>
    <message>
        <source>Fade In &amp;&amp; Out (in seconds)</source>
        <extracomment>The ampersand is doubled to be shown.</extracomment>
        <translation>Ein- und Ausblenden (in Sekunden)</translation>
    </message>
</context>
<context>
    <name>BatchDialog</name>
    <message>
        <source> Batch Process</source>
        <extracomment>Follows the name of the application in the title of the window; keep the leading blank.</extracomment>
        <translation> – Stapelverarbeitung</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>One or more errors have occured!</source>
        <translation>Es sind Fehler aufgetreten!</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Fortsetzen</translation>
    </message>
    <message>
        <source>ANALYZING</source>
        <translation>ANALYSE</translation>
    </message>
    <message>
        <source>DONE</source>
        <translation>FERTIG</translation>
    </message>
    <message>
        <source>NOT ENOUGH FREE SPACE</source>
        <translation>NICHT GENUG FREIER SPEICHERPLATZ</translation>
    </message>
    <message>
        <source>Not enough free space</source>
        <translation>Nicht genug freier Speicherplatz</translation>
    </message>
    <message>
        <source>&lt;H3&gt;Not enough free space&lt;/H3&gt;Conversion paused.&lt;br&gt;Free up space and click &quot;Resume&quot;.&lt;br&gt;To stop conversion, click &quot;Stop&quot;.</source>
        <translation>&lt;H3&gt;Nicht genug freier Speicherplatz&lt;/H3&gt;Die Umwandlung ist angehalten.&lt;br&gt;Geben Sie Speicherplatz frei und klicken Sie auf „Fortsetzen“.&lt;br&gt;Um die Umwandlung zu beenden, klicken Sie auf „Stopp“.</translation>
    </message>
</context>
<context>
    <name>BatchWorker</name>
    <message>
        <source>COPYING IMAGE FILES</source>
        <translation>BILDDATEIEN WERDEN KOPIERT</translation>
    </message>
    <message>
        <source>COPYING TEXT FILES</source>
        <translation>TEXTDATEIEN WERDEN KOPIERT</translation>
    </message>
    <message>
        <source>COPYING NON-CONVERTED CONTENT</source>
        <translation>ÜBRIGE INHALTE WERDEN KOPIERT</translation>
    </message>
    <message>
        <source>ANALYZING</source>
        <translation>ANALYSE</translation>
    </message>
    <message>
        <source>Can not convert, because the duration is to long. Please reduce the conversion sample rate and try again: </source>
        <translation>Konvertierung nicht möglich, weil die Datei zu lang ist. Bitte verringern Sie die Abtastrate und versuchen Sie es erneut: </translation>
    </message>
    <message>
        <source>Can not convert: </source>
        <translation>Konvertierung nicht möglich: </translation>
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
        <translation>FEHLERPROTOKOLL</translation>
    </message>
    <message>
        <source>Errors of the conversion</source>
        <translation>Fehler der Konvertierung</translation>
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
        <translation>Länge der Einblendung</translation>
    </message>
    <message>
        <source>Length of the fade-out</source>
        <translation>Länge der Ausblendung</translation>
    </message>
    <message>
        <source>Longer fade-in</source>
        <translation>Einblendung verlängern</translation>
    </message>
    <message>
        <source>Longer fade-out</source>
        <translation>Ausblendung verlängern</translation>
    </message>
    <message>
        <source>Shorter fade-in</source>
        <translation>Einblendung verkürzen</translation>
    </message>
    <message>
        <source>Shorter fade-out</source>
        <translation>Ausblendung verkürzen</translation>
    </message>
</context>
<context>
    <name>GeneralOutput</name>
    <message>
        <source>Settings error, can not create: </source>
        <translation>Fehler in den Einstellungen, Datei kann nicht erzeugt werden: </translation>
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
        <translation>Ordner mit Audio-/Videodateien öffnen</translation>
    </message>
    <message>
        <source>&lt;H2&gt;&lt;center&gt;Drop the audio/video files&lt;br&gt;and folders here&lt;br&gt;&lt;bold&gt;+&lt;/bold&gt;&lt;/center&gt;&lt;/H2&gt;</source>
        <translation>&lt;H2&gt;&lt;center&gt;Audio-/Videodateien&lt;br&gt;und Ordner hier ablegen&lt;br&gt;&lt;bold&gt;+&lt;/bold&gt;&lt;/center&gt;&lt;/H2&gt;</translation>
    </message>
    <message>
        <source>Change destination folder...</source>
        <translation>Zielordner ändern …</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Destination folder</source>
        <translation>Zielordner</translation>
    </message>
    <message>
        <source>Opens the destination folder in finder</source>
        <translation>Öffnet den Zielordner im Dateimanager</translation>
    </message>
    <message>
        <source>Open the destination folder</source>
        <translation>Zielordner öffnen</translation>
    </message>
    <message>
        <source>Destination:</source>
        <translation>Ziel:</translation>
    </message>
    <message>
        <source>Tracks</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>Konvertieren</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Set destination folder</source>
        <translation>Zielordner festlegen</translation>
    </message>
    <message>
        <source>Files with unreadable names were left out: %1</source>
        <translation>Dateien mit unlesbaren Namen wurden ausgelassen: %1</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Can not access the destination folder.
Please verify the destination.</source>
        <translation>Kein Zugriff auf den Zielordner.
Bitte überprüfen Sie das Ziel.</translation>
    </message>
    <message>
        <source>WAITING FOR THE PREVIOUS CONVERSION</source>
        <translation>WARTET AUF DIE VORHERIGE KONVERTIERUNG</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Abspielen</translation>
    </message>
    <message>
        <source>Remove from list</source>
        <translation>Aus der Liste entfernen</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>Wiedergabe oder Pause</translation>
    </message>
    <message>
        <source>%1 media file</source>
        <translation>%1 Mediendatei</translation>
    </message>
    <message>
        <source>%1 media files</source>
        <translation>%1 Mediendateien</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Finishing the tags of the converted files…</source>
        <translation>Die Metadaten der konvertierten Dateien werden fertiggestellt …</translation>
    </message>
</context>
</TS>
