<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>AppSettingsDialog</name>
    <message>
        <source>320 kbps</source>
        <translation>320 kbps</translation>
    </message>
    <message>
        <source>256 kbps</source>
        <translation>256 kbps</translation>
    </message>
    <message>
        <source>224 kbps</source>
        <translation>224 kbps</translation>
    </message>
    <message>
        <source>192 kbps</source>
        <translation>192 kbps</translation>
    </message>
    <message>
        <source>160 kbps</source>
        <translation>160 kbps</translation>
    </message>
    <message>
        <source>128 kbps</source>
        <translation>128 kbps</translation>
    </message>
    <message>
        <source>112 kbps</source>
        <translation>112 kbps</translation>
    </message>
    <message>
        <source>96 kbps</source>
        <translation>96 kbps</translation>
    </message>
    <message>
        <source>80 kbps</source>
        <translation>80 kbps</translation>
    </message>
    <message>
        <source>64 kbps</source>
        <translation>64 kbps</translation>
    </message>
    <message>
        <source>56 kbps</source>
        <translation>56 kbps</translation>
    </message>
    <message>
        <source>48 kbps</source>
        <translation>48 kbps</translation>
    </message>
    <message>
        <source>40 kbps</source>
        <translation>40 kbps</translation>
    </message>
    <message>
        <source>32 kbps</source>
        <translation>32 kbps</translation>
    </message>
    <message>
        <source>24 kbps</source>
        <translation>24 kbps</translation>
    </message>
    <message>
        <source>16 kbps</source>
        <translation>16 kbps</translation>
    </message>
    <message>
        <source> Settings</source>
        <extracomment>Follows the name of the application in the title of the window; keep the leading blank.</extracomment>
        <translation> – Configuración</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>1 (Mono)</source>
        <translation>1 (mono)</translation>
    </message>
    <message>
        <source>2 (Stereo)</source>
        <translation>2 (estéreo)</translation>
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
        <translation>Baja</translation>
    </message>
    <message>
        <source>BitRate</source>
        <translation>Tasa de bits</translation>
    </message>
    <message>
        <source>Bits per Sample:</source>
        <translation>Bits por muestra:</translation>
    </message>
    <message>
        <source>Channels:</source>
        <translation>Canales:</translation>
    </message>
    <message>
        <source>Quality:</source>
        <translation>Calidad:</translation>
    </message>
    <message>
        <source>Copy meta tags (id3) from source</source>
        <translation>Copiar los metadatos (ID3) del origen</translation>
    </message>
    <message>
        <source>Copy image files from source</source>
        <translation>Copiar los archivos de imagen del origen</translation>
    </message>
    <message>
        <source>Copy text files from source</source>
        <translation>Copiar los archivos de texto del origen</translation>
    </message>
    <message>
        <source>Copy entire non-converted content from source</source>
        <translation>Copiar todo el contenido no convertido del origen</translation>
    </message>
    <message>
        <source>Preserve folder structure of the source</source>
        <translation>Conservar la estructura de carpetas del origen</translation>
    </message>
    <message>
        <source>Trim silence from start and end</source>
        <translation>Recortar el silencio al principio y al final</translation>
    </message>
    <message>
        <source>Play sound</source>
        <translation>Reproducir un sonido</translation>
    </message>
    <message>
        <source>Open the destination folder</source>
        <translation>Abrir la carpeta de destino</translation>
    </message>
    <message>
        <source>Clear the list</source>
        <translation>Vaciar la lista</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>Operaciones</translation>
    </message>
    <message>
        <source>Opens the destination folder in finder</source>
        <translation>Abre la carpeta de destino en el gestor de archivos</translation>
    </message>
    <message>
        <source>Sample Rate:</source>
        <translation>Frecuencia de muestreo:</translation>
    </message>
    <message>
        <source>Source / Destination Settings</source>
        <translation>Origen y destino</translation>
    </message>
    <message>
        <source>After Conversion</source>
        <translation>Después de la conversión</translation>
    </message>
    <message>
        <source>WAV Settings</source>
        <translation>Configuración de WAV</translation>
    </message>
    <message>
        <source>M4A Settings</source>
        <translation>Configuración de M4A</translation>
    </message>
    <message>
        <source>MP3 Settings</source>
        <translation>Configuración de MP3</translation>
    </message>
    <message>
        <source>Unknown Settings</source>
        <translation>Configuración desconocida</translation>
    </message>
    <message>
        <source>Volume level normalization (in %)</source>
        <translation>Normalización del volumen (en %)</translation>
    </message>
    <message>
        <source>Level in percent</source>
        <translation>Nivel en porcentaje</translation>
    </message>
    <message>
        <source>Fade In &amp;&amp; Out (in seconds)</source>
        <extracomment>The ampersand is doubled to be shown.</extracomment>
        <translation>Fundido de entrada y salida (en segundos)</translation>
    </message>
</context>
<context>
    <name>BatchDialog</name>
    <message>
        <source> Batch Process</source>
        <extracomment>Follows the name of the application in the title of the window; keep the leading blank.</extracomment>
        <translation> – Proceso por lotes</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>One or more errors have occured!</source>
        <translation>¡Se han producido uno o más errores!</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Reanudar</translation>
    </message>
    <message>
        <source>ANALYZING</source>
        <translation>ANALIZANDO</translation>
    </message>
    <message>
        <source>DONE</source>
        <translation>TERMINADO</translation>
    </message>
    <message>
        <source>NOT ENOUGH FREE SPACE</source>
        <translation>NO HAY SUFICIENTE ESPACIO LIBRE</translation>
    </message>
    <message>
        <source>Not enough free space</source>
        <translation>No hay suficiente espacio libre</translation>
    </message>
    <message>
        <source>&lt;H3&gt;Not enough free space&lt;/H3&gt;Conversion paused.&lt;br&gt;Free up space and click &quot;Resume&quot;.&lt;br&gt;To stop conversion, click &quot;Stop&quot;.</source>
        <translation>&lt;H3&gt;No hay suficiente espacio libre&lt;/H3&gt;La conversión está en pausa.&lt;br&gt;Libere espacio y haga clic en «Reanudar».&lt;br&gt;Para terminar la conversión, haga clic en «Detener».</translation>
    </message>
</context>
<context>
    <name>BatchWorker</name>
    <message>
        <source>COPYING IMAGE FILES</source>
        <translation>COPIANDO ARCHIVOS DE IMAGEN</translation>
    </message>
    <message>
        <source>COPYING TEXT FILES</source>
        <translation>COPIANDO ARCHIVOS DE TEXTO</translation>
    </message>
    <message>
        <source>COPYING NON-CONVERTED CONTENT</source>
        <translation>COPIANDO CONTENIDO NO CONVERTIDO</translation>
    </message>
    <message>
        <source>ANALYZING</source>
        <translation>ANALIZANDO</translation>
    </message>
    <message>
        <source>Can not convert, because the duration is to long. Please reduce the conversion sample rate and try again: </source>
        <translation>No se puede convertir porque la duración es excesiva. Reduzca la frecuencia de muestreo e inténtelo de nuevo: </translation>
    </message>
    <message>
        <source>Can not convert: </source>
        <translation>No se puede convertir: </translation>
    </message>
</context>
<context>
    <name>DecoratedDial</name>
    <message>
        <source>min         max</source>
        <extracomment>Below the two ends of the dial; keep the distance between the words.</extracomment>
        <translation>mín         máx</translation>
    </message>
</context>
<context>
    <name>ErrorsDialog</name>
    <message>
        <source>ERRORS LOG</source>
        <translation>REGISTRO DE ERRORES</translation>
    </message>
    <message>
        <source>Errors of the conversion</source>
        <translation>Errores de conversión</translation>
    </message>
    <message>
        <source>&amp;Ok</source>
        <translation>&amp;Aceptar</translation>
    </message>
</context>
<context>
    <name>FadeWidget</name>
    <message>
        <source>Length of the fade-in</source>
        <translation>Duración del fundido de entrada</translation>
    </message>
    <message>
        <source>Length of the fade-out</source>
        <translation>Duración del fundido de salida</translation>
    </message>
    <message>
        <source>Longer fade-in</source>
        <translation>Alargar el fundido de entrada</translation>
    </message>
    <message>
        <source>Longer fade-out</source>
        <translation>Alargar el fundido de salida</translation>
    </message>
    <message>
        <source>Shorter fade-in</source>
        <translation>Acortar el fundido de entrada</translation>
    </message>
    <message>
        <source>Shorter fade-out</source>
        <translation>Acortar el fundido de salida</translation>
    </message>
</context>
<context>
    <name>GeneralOutput</name>
    <message>
        <source>Settings error, can not create: </source>
        <translation>Error de configuración, no se puede crear: </translation>
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
        <translation>Abrir una carpeta con audio/vídeo</translation>
    </message>
    <message>
        <source>&lt;H2&gt;&lt;center&gt;Drop the audio/video files&lt;br&gt;and folders here&lt;br&gt;&lt;bold&gt;+&lt;/bold&gt;&lt;/center&gt;&lt;/H2&gt;</source>
        <translation>&lt;H2&gt;&lt;center&gt;Suelte aquí los archivos de audio/vídeo&lt;br&gt;y las carpetas&lt;br&gt;&lt;bold&gt;+&lt;/bold&gt;&lt;/center&gt;&lt;/H2&gt;</translation>
    </message>
    <message>
        <source>Change destination folder...</source>
        <translation>Cambiar la carpeta de destino…</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>Destination folder</source>
        <translation>Carpeta de destino</translation>
    </message>
    <message>
        <source>Opens the destination folder in finder</source>
        <translation>Abre la carpeta de destino en el gestor de archivos</translation>
    </message>
    <message>
        <source>Open the destination folder</source>
        <translation>Abrir la carpeta de destino</translation>
    </message>
    <message>
        <source>Destination:</source>
        <translation>Destino:</translation>
    </message>
    <message>
        <source>Tracks</source>
        <translation>Pistas</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>Convertir</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Set destination folder</source>
        <translation>Elegir la carpeta de destino</translation>
    </message>
    <message>
        <source>Files with unreadable names were left out: %1</source>
        <translation>Se han omitido archivos con nombres ilegibles: %1</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Can not access the destination folder.
Please verify the destination.</source>
        <translation>No se puede acceder a la carpeta de destino.
Compruebe el destino.</translation>
    </message>
    <message>
        <source>WAITING FOR THE PREVIOUS CONVERSION</source>
        <translation>ESPERANDO A LA CONVERSIÓN ANTERIOR</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posición</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproducir</translation>
    </message>
    <message>
        <source>Remove from list</source>
        <translation>Quitar de la lista</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>Reproducir o pausar</translation>
    </message>
    <message>
        <source>%1 media file</source>
        <translation>%1 archivo multimedia</translation>
    </message>
    <message>
        <source>%1 media files</source>
        <translation>%1 archivos multimedia</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Finishing the tags of the converted files…</source>
        <translation>Finalizando los metadatos de los archivos convertidos…</translation>
    </message>
</context>
</TS>
