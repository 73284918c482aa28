<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
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
        <translation> – Paramètres</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>1 (Mono)</source>
        <translation>1 (mono)</translation>
    </message>
    <message>
        <source>2 (Stereo)</source>
        <translation>2 (stéréo)</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Élevée</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Moyenne</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Basse</translation>
    </message>
    <message>
        <source>BitRate</source>
        <translation>Débit binaire</translation>
    </message>
    <message>
        <source>Bits per Sample:</source>
        <translation>Bits par échantillon&#xa0;:</translation>
    </message>
    <message>
        <source>Channels:</source>
        <translation>Canaux&#xa0;:</translation>
    </message>
    <message>
        <source>Quality:</source>
        <translation>Qualité&#xa0;:</translation>
    </message>
    <message>
        <source>Copy meta tags (id3) from source</source>
        <translation>Copier les métadonnées (ID3) de la source</translation>
    </message>
    <message>
        <source>Copy image files from source</source>
        <translation>Copier les fichiers image de la source</translation>
    </message>
    <message>
        <source>Copy text files from source</source>
        <translation>Copier les fichiers texte de la source</translation>
    </message>
    <message>
        <source>Copy entire non-converted content from source</source>
        <translation>Copier tout le contenu non converti de la source</translation>
    </message>
    <message>
        <source>Preserve folder structure of the source</source>
        <translation>Conserver l’arborescence des dossiers source</translation>
    </message>
    <message>
        <source>Trim silence from start and end</source>
        <translation>Supprimer les silences au début et à la fin</translation>
    </message>
    <message>
        <source>Play sound</source>
        <translation>Émettre un son</translation>
    </message>
    <message>
        <source>Open the destination folder</source>
        <translation>Ouvrir le dossier de destination</translation>
    </message>
    <message>
        <source>Clear the list</source>
        <translation>Vider la liste</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>Opérations</translation>
    </message>
    <message>
        <source>Opens the destination folder in finder</source>
        <translation>Ouvre le dossier de destination dans le gestionnaire de fichiers</translation>
    </message>
    <message>
        <source>Sample Rate:</source>
        <translation>Fréquence d’échantillonnage&#xa0;:</translation>
    </message>
    <message>
        <source>Source / Destination Settings</source>
        <translation>Source et destination</translation>
    </message>
    <message>
        <source>After Conversion</source>
        <translation>Après la conversion</translation>
    </message>
    <message>
        <source>WAV Settings</source>
        <translation>Paramètres WAV</translation>
    </message>
    <message>
        <source>M4A Settings</source>
        <translation>Paramètres M4A</translation>
    </message>
    <message>
        <source>MP3 Settings</source>
        <translation>Paramètres MP3</translation>
    </message>
    <message>
        <source>Unknown Settings</source>
        <translation>Paramètres inconnus</translation>
    </message>
    <message>
        <source>Volume level normalization (in %)</source>
        <translation>Normalisation du volume (en %)</translation>
    </message>
    <message>
        <source>Level in percent</source>
        <translation>Niveau en pour cent</translation>
    </message>
    <message>
        <source>Fade In &amp;&amp; Out (in seconds)</source>
        <extracomment>The ampersand is doubled to be shown.</extracomment>
        <translation>Fondus d’entrée et de sortie (en secondes)</translation>
    </message>
</context>
<context>
    <name>BatchDialog</name>
    <message>
        <source> Batch Process</source>
        <extracomment>Follows the name of the application in the title of the window; keep the leading blank.</extracomment>
        <translation> – Traitement par lots</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>One or more errors have occured!</source>
        <translation>Des erreurs se sont produites&#xa0;!</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Reprendre</translation>
    </message>
    <message>
        <source>ANALYZING</source>
        <translation>ANALYSE</translation>
    </message>
    <message>
        <source>DONE</source>
        <translation>TERMINÉ</translation>
    </message>
    <message>
        <source>NOT ENOUGH FREE SPACE</source>
        <translation>ESPACE LIBRE INSUFFISANT</translation>
    </message>
    <message>
        <source>Not enough free space</source>
        <translation>Espace libre insuffisant</translation>
    </message>
    <message>
        <source>&lt;H3&gt;Not enough free space&lt;/H3&gt;Conversion paused.&lt;br&gt;Free up space and click &quot;Resume&quot;.&lt;br&gt;To stop conversion, click &quot;Stop&quot;.</source>
        <translation>&lt;H3&gt;Espace libre insuffisant&lt;/H3&gt;La conversion est en pause.&lt;br&gt;Libérez de l’espace et cliquez sur « Reprendre ».&lt;br&gt;Pour arrêter la conversion, cliquez sur « Arrêter ».</translation>
    </message>
</context>
<context>
    <name>BatchWorker</name>
    <message>
        <source>COPYING IMAGE FILES</source>
        <translation>COPIE DES FICHIERS IMAGE</translation>
    </message>
    <message>
        <source>COPYING TEXT FILES</source>
        <translation>COPIE DES FICHIERS TEXTE</translation>
    </message>
    <message>
        <source>COPYING NON-CONVERTED CONTENT</source>
        <translation>COPIE DU CONTENU NON CONVERTI</translation>
    </message>
    <message>
        <source>ANALYZING</source>
        <translation>ANALYSE</translation>
    </message>
    <message>
        <source>Can not convert, because the duration is to long. Please reduce the conversion sample rate and try again: </source>
        <translation>Conversion impossible&#xa0;: la durée est trop longue. Réduisez la fréquence d’échantillonnage et réessayez&#xa0;: </translation>
    </message>
    <message>
        <source>Can not convert: </source>
        <translation>Conversion impossible&#xa0;: </translation>
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
        <translation>JOURNAL DES ERREURS</translation>
    </message>
    <message>
        <source>Errors of the conversion</source>
        <translation>Erreurs de conversion</translation>
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
        <translation>Durée du fondu d’entrée</translation>
    </message>
    <message>
        <source>Length of the fade-out</source>
        <translation>Durée du fondu de sortie</translation>
    </message>
    <message>
        <source>Longer fade-in</source>
        <translation>Allonger le fondu d’entrée</translation>
    </message>
    <message>
        <source>Longer fade-out</source>
        <translation>Allonger le fondu de sortie</translation>
    </message>
    <message>
        <source>Shorter fade-in</source>
        <translation>Raccourcir le fondu d’entrée</translation>
    </message>
    <message>
        <source>Shorter fade-out</source>
        <translation>Raccourcir le fondu de sortie</translation>
    </message>
</context>
<context>
    <name>GeneralOutput</name>
    <message>
        <source>Settings error, can not create: </source>
        <translation>Erreur de paramètres, impossible de créer&#xa0;: </translation>
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
        <translation>Ouvrir un dossier audio/vidéo</translation>
    </message>
    <message>
        <source>&lt;H2&gt;&lt;center&gt;Drop the audio/video files&lt;br&gt;and folders here&lt;br&gt;&lt;bold&gt;+&lt;/bold&gt;&lt;/center&gt;&lt;/H2&gt;</source>
        <translation>&lt;H2&gt;&lt;center&gt;Déposez ici les fichiers audio/vidéo&lt;br&gt;et les dossiers&lt;br&gt;&lt;bold&gt;+&lt;/bold&gt;&lt;/center&gt;&lt;/H2&gt;</translation>
    </message>
    <message>
        <source>Change destination folder...</source>
        <translation>Changer de dossier de destination…</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Destination folder</source>
        <translation>Dossier de destination</translation>
    </message>
    <message>
        <source>Opens the destination folder in finder</source>
        <translation>Ouvre le dossier de destination dans le gestionnaire de fichiers</translation>
    </message>
    <message>
        <source>Open the destination folder</source>
        <translation>Ouvrir le dossier de destination</translation>
    </message>
    <message>
        <source>Destination:</source>
        <translation>Destination&#xa0;:</translation>
    </message>
    <message>
        <source>Tracks</source>
        <translation>Pistes</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>Convertir</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Set destination folder</source>
        <translation>Choisir le dossier de destination</translation>
    </message>
    <message>
        <source>Files with unreadable names were left out: %1</source>
        <translation>Fichiers ignorés car leur nom est illisible&#xa0;: %1</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Can not access the destination folder.
Please verify the destination.</source>
        <translation>Impossible d’accéder au dossier de destination.
Veuillez vérifier la destination.</translation>
    </message>
    <message>
        <source>WAITING FOR THE PREVIOUS CONVERSION</source>
        <translation>EN ATTENTE DE LA CONVERSION PRÉCÉDENTE</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Lire</translation>
    </message>
    <message>
        <source>Remove from list</source>
        <translation>Retirer de la liste</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>Lire ou mettre en pause</translation>
    </message>
    <message>
        <source>%1 media file</source>
        <translation>%1 fichier multimédia</translation>
    </message>
    <message>
        <source>%1 media files</source>
        <translation>%1 fichiers multimédias</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Finishing the tags of the converted files…</source>
        <translation>Finalisation des métadonnées des fichiers convertis…</translation>
    </message>
</context>
</TS>
