<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt">
<context>
    <name>AppSettingsDialog</name>
    <message>
        <source>320 kbps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>256 kbps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>224 kbps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>192 kbps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>160 kbps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>128 kbps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>112 kbps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>96 kbps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>80 kbps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>64 kbps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>56 kbps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>48 kbps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>40 kbps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>32 kbps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>24 kbps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>16 kbps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Settings</source>
        <extracomment>Follows the name of the application in the title of the window; keep the leading blank.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ok</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 (Mono)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2 (Stereo)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>High</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Medium</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Low</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>BitRate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bits per Sample:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Channels:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quality:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy meta tags (id3) from source</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy image files from source</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy text files from source</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy entire non-converted content from source</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preserve folder structure of the source</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Trim silence from start and end</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play sound</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open the destination folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear the list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>General</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Operations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opens the destination folder in finder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sample Rate:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Source / Destination Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>After Conversion</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>WAV Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>M4A Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MP3 Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Volume level normalization (in %)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Level in percent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fade In &amp;&amp; Out (in seconds)</source>
        <extracomment>The ampersand is doubled to be shown.</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BatchDialog</name>
    <message>
        <source> Batch Process</source>
        <extracomment>Follows the name of the application in the title of the window; keep the leading blank.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One or more errors have occured!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resume</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BatchWorker</name>
    <message>
        <source>COPYING IMAGE FILES</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>COPYING TEXT FILES</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>COPYING NON-CONVERTED CONTENT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ANALYZING</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can not convert, because the duration is to long. Please reduce the conversion sample rate and try again: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can not convert: </source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DecoratedDial</name>
    <message>
        <source>min         max</source>
        <extracomment>Below the two ends of the dial; keep the distance between the words.</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ErrorsDialog</name>
    <message>
        <source>ERRORS LOG</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Errors of the conversion</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Ok</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FadeWidget</name>
    <message>
        <source>Length of the fade-in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Length of the fade-out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Longer fade-in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Longer fade-out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shorter fade-in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shorter fade-out</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GeneralOutput</name>
    <message>
        <source>Settings error, can not create: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>
</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainPage</name>
    <message>
        <source>Click to open the folder with audio/video files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;H2&gt;&lt;center&gt;Drop the audio/video files&lt;br&gt;and folders here&lt;br&gt;&lt;bold&gt;+&lt;/bold&gt;&lt;/center&gt;&lt;/H2&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change destination folder...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Destination folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opens the destination folder in finder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open the destination folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Destination:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tracks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Convert</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set destination folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files with unreadable names were left out: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can not access the destination folder.
Please verify the destination.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>WAITING FOR THE PREVIOUS CONVERSION</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove from list</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Finishing the tags of the converted files…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
