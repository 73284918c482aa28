<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl">
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
        <translation> – Instellingen</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
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
        <translation>Hoog</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Gemiddeld</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Laag</translation>
    </message>
    <message>
        <source>BitRate</source>
        <translation>Bitsnelheid</translation>
    </message>
    <message>
        <source>Bits per Sample:</source>
        <translation>Bits per sample:</translation>
    </message>
    <message>
        <source>Channels:</source>
        <translation>Kanalen:</translation>
    </message>
    <message>
        <source>Quality:</source>
        <translation>Kwaliteit:</translation>
    </message>
    <message>
        <source>Copy meta tags (id3) from source</source>
        <translation>Metadata (ID3) van de bron overnemen</translation>
    </message>
    <message>
        <source>Copy image files from source</source>
        <translation>Afbeeldingen uit de bron kopiëren</translation>
    </message>
    <message>
        <source>Copy text files from source</source>
        <translation>Tekstbestanden uit de bron kopiëren</translation>
    </message>
    <message>
        <source>Copy entire non-converted content from source</source>
        <translation>Alle niet-geconverteerde inhoud van de bron kopiëren</translation>
    </message>
    <message>
        <source>Preserve folder structure of the source</source>
        <translation>Mappenstructuur van de bron behouden</translation>
    </message>
    <message>
        <source>Trim silence from start and end</source>
        <translation>Stilte aan het begin en eind verwijderen</translation>
    </message>
    <message>
        <source>Play sound</source>
        <translation>Geluid afspelen</translation>
    </message>
    <message>
        <source>Open the destination folder</source>
        <translation>Doelmap openen</translation>
    </message>
    <message>
        <source>Clear the list</source>
        <translation>Lijst wissen</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Algemeen</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>Bewerkingen</translation>
    </message>
    <message>
        <source>Opens the destination folder in finder</source>
        <translation>Opent de doelmap in de bestandsbeheerder</translation>
    </message>
    <message>
        <source>Sample Rate:</source>
        <translation>Samplefrequentie:</translation>
    </message>
    <message>
        <source>Source / Destination Settings</source>
        <translation>Bron en doel</translation>
    </message>
    <message>
        <source>After Conversion</source>
        <translation>Na het converteren</translation>
    </message>
    <message>
        <source>WAV Settings</source>
        <translation>WAV-instellingen</translation>
    </message>
    <message>
        <source>M4A Settings</source>
        <translation>M4A-instellingen</translation>
    </message>
    <message>
        <source>MP3 Settings</source>
        <translation>MP3-instellingen</translation>
    </message>
    <message>
        <source>Unknown Settings</source>
        <translation>Onbekende instellingen</translation>
    </message>
    <message>
        <source>Volume level normalization (in %)</source>
        <translation>Volume normaliseren (in %)</translation>
    </message>
    <message>
        <source>Level in percent</source>
        <translation>Niveau in procenten</translation>
    </message>
    <message>
        <source>Fade In &amp;&amp; Out (in seconds)</source>
        <extracomment>The ampersand is doubled to be shown.</extracomment>
        <translation>In- en uitfaden (in seconden)</translation>
    </message>
</context>
<context>
    <name>BatchDialog</name>
    <message>
        <source> Batch Process</source>
        <extracomment>Follows the name of the application in the title of the window; keep the leading blank.</extracomment>
        <translation> – Batchverwerking</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pauzeren</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stoppen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>One or more errors have occured!</source>
        <translation>Er zijn fouten opgetreden!</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Hervatten</translation>
    </message>
    <message>
        <source>ANALYZING</source>
        <translation>ANALYSEREN</translation>
    </message>
    <message>
        <source>DONE</source>
        <translation>KLAAR</translation>
    </message>
    <message>
        <source>NOT ENOUGH FREE SPACE</source>
        <translation>NIET GENOEG VRIJE RUIMTE</translation>
    </message>
    <message>
        <source>Not enough free space</source>
        <translation>Niet genoeg vrije ruimte</translation>
    </message>
    <message>
        <source>&lt;H3&gt;Not enough free space&lt;/H3&gt;Conversion paused.&lt;br&gt;Free up space and click &quot;Resume&quot;.&lt;br&gt;To stop conversion, click &quot;Stop&quot;.</source>
        <translation>&lt;H3&gt;Niet genoeg vrije ruimte&lt;/H3&gt;De conversie is gepauzeerd.&lt;br&gt;Maak ruimte vrij en klik op ‘Hervatten’.&lt;br&gt;Klik op ‘Stoppen’ om de conversie te beëindigen.</translation>
    </message>
</context>
<context>
    <name>BatchWorker</name>
    <message>
        <source>COPYING IMAGE FILES</source>
        <translation>AFBEELDINGEN KOPIËREN</translation>
    </message>
    <message>
        <source>COPYING TEXT FILES</source>
        <translation>TEKSTBESTANDEN KOPIËREN</translation>
    </message>
    <message>
        <source>COPYING NON-CONVERTED CONTENT</source>
        <translation>OVERIGE INHOUD KOPIËREN</translation>
    </message>
    <message>
        <source>ANALYZING</source>
        <translation>ANALYSEREN</translation>
    </message>
    <message>
        <source>Can not convert, because the duration is to long. Please reduce the conversion sample rate and try again: </source>
        <translation>Converteren is niet mogelijk omdat de duur te lang is. Verlaag de samplefrequentie en probeer het opnieuw: </translation>
    </message>
    <message>
        <source>Can not convert: </source>
        <translation>Converteren is niet mogelijk: </translation>
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
        <translation>FOUTENLOGBOEK</translation>
    </message>
    <message>
        <source>Errors of the conversion</source>
        <translation>Fouten bij het converteren</translation>
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
        <translation>Lengte van de fade-in</translation>
    </message>
    <message>
        <source>Length of the fade-out</source>
        <translation>Lengte van de fade-out</translation>
    </message>
    <message>
        <source>Longer fade-in</source>
        <translation>Langere fade-in</translation>
    </message>
    <message>
        <source>Longer fade-out</source>
        <translation>Langere fade-out</translation>
    </message>
    <message>
        <source>Shorter fade-in</source>
        <translation>Kortere fade-in</translation>
    </message>
    <message>
        <source>Shorter fade-out</source>
        <translation>Kortere fade-out</translation>
    </message>
</context>
<context>
    <name>GeneralOutput</name>
    <message>
        <source>Settings error, can not create: </source>
        <translation>Fout in de instellingen, kan niet maken: </translation>
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
        <translation>Klik om een map met audio/video te openen</translation>
    </message>
    <message>
        <source>&lt;H2&gt;&lt;center&gt;Drop the audio/video files&lt;br&gt;and folders here&lt;br&gt;&lt;bold&gt;+&lt;/bold&gt;&lt;/center&gt;&lt;/H2&gt;</source>
        <translation>&lt;H2&gt;&lt;center&gt;Zet de audio-/videobestanden&lt;br&gt;en mappen hier neer&lt;br&gt;&lt;bold&gt;+&lt;/bold&gt;&lt;/center&gt;&lt;/H2&gt;</translation>
    </message>
    <message>
        <source>Change destination folder...</source>
        <translation>Doelmap wijzigen…</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Herstellen</translation>
    </message>
    <message>
        <source>Destination folder</source>
        <translation>Doelmap</translation>
    </message>
    <message>
        <source>Opens the destination folder in finder</source>
        <translation>Opent de doelmap in de bestandsbeheerder</translation>
    </message>
    <message>
        <source>Open the destination folder</source>
        <translation>Doelmap openen</translation>
    </message>
    <message>
        <source>Destination:</source>
        <translation>Doel:</translation>
    </message>
    <message>
        <source>Tracks</source>
        <translation>Nummers</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>Converteren</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Instellingen</translation>
    </message>
    <message>
        <source>Set destination folder</source>
        <translation>Doelmap instellen</translation>
    </message>
    <message>
        <source>Files with unreadable names were left out: %1</source>
        <translation>Bestanden met onleesbare namen zijn overgeslagen: %1</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fout</translation>
    </message>
    <message>
        <source>Can not access the destination folder.
Please verify the destination.</source>
        <translation>Geen toegang tot de doelmap.
Controleer de doelmap.</translation>
    </message>
    <message>
        <source>WAITING FOR THE PREVIOUS CONVERSION</source>
        <translation>WACHTEN OP DE VORIGE CONVERSIE</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Positie</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stoppen</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Afspelen</translation>
    </message>
    <message>
        <source>Remove from list</source>
        <translation>Uit de lijst verwijderen</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>Afspelen of pauzeren</translation>
    </message>
    <message>
        <source>%1 media file</source>
        <translation>%1 mediabestand</translation>
    </message>
    <message>
        <source>%1 media files</source>
        <translation>%1 mediabestanden</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Finishing the tags of the converted files…</source>
        <translation>Metadata van de geconverteerde bestanden voltooien…</translation>
    </message>
</context>
</TS>
