<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt">
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
        <translation> – Configurações</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
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
        <translation>Média</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Baixa</translation>
    </message>
    <message>
        <source>BitRate</source>
        <translation>Taxa de bits</translation>
    </message>
    <message>
        <source>Bits per Sample:</source>
        <translation>Bits por amostra:</translation>
    </message>
    <message>
        <source>Channels:</source>
        <translation>Canais:</translation>
    </message>
    <message>
        <source>Quality:</source>
        <translation>Qualidade:</translation>
    </message>
    <message>
        <source>Copy meta tags (id3) from source</source>
        <translation>Copiar metadados (ID3) da origem</translation>
    </message>
    <message>
        <source>Copy image files from source</source>
        <translation>Copiar arquivos de imagem da origem</translation>
    </message>
    <message>
        <source>Copy text files from source</source>
        <translation>Copiar arquivos de texto da origem</translation>
    </message>
    <message>
        <source>Copy entire non-converted content from source</source>
        <translation>Copiar todo o conteúdo não convertido da origem</translation>
    </message>
    <message>
        <source>Preserve folder structure of the source</source>
        <translation>Manter a estrutura de pastas da origem</translation>
    </message>
    <message>
        <source>Trim silence from start and end</source>
        <translation>Remover silêncio do início e do fim</translation>
    </message>
    <message>
        <source>Play sound</source>
        <translation>Tocar um som</translation>
    </message>
    <message>
        <source>Open the destination folder</source>
        <translation>Abrir a pasta de destino</translation>
    </message>
    <message>
        <source>Clear the list</source>
        <translation>Limpar a lista</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>Operações</translation>
    </message>
    <message>
        <source>Opens the destination folder in finder</source>
        <translation>Abre a pasta de destino no gerenciador de arquivos</translation>
    </message>
    <message>
        <source>Sample Rate:</source>
        <translation>Taxa de amostragem:</translation>
    </message>
    <message>
        <source>Source / Destination Settings</source>
        <translation>Origem e destino</translation>
    </message>
    <message>
        <source>After Conversion</source>
        <translation>Após a conversão</translation>
    </message>
    <message>
        <source>WAV Settings</source>
        <translation>Configurações WAV</translation>
    </message>
    <message>
        <source>M4A Settings</source>
        <translation>Configurações M4A</translation>
    </message>
    <message>
        <source>MP3 Settings</source>
        <translation>Configurações MP3</translation>
    </message>
    <message>
        <source>Unknown Settings</source>
        <translation>Configurações desconhecidas</translation>
    </message>
    <message>
        <source>Volume level normalization (in %)</source>
        <translation>Normalização do volume (em %)</translation>
    </message>
    <message>
        <source>Level in percent</source>
        <translation>Nível em porcentagem</translation>
    </message>
    <message>
        <source>Fade In &amp;&amp; Out (in seconds)</source>
        <extracomment>The ampersand is doubled to be shown.</extracomment>
        <translation>Fade-in e fade-out (em segundos)</translation>
    </message>
</context>
<context>
    <name>BatchDialog</name>
    <message>
        <source> Batch Process</source>
        <extracomment>Follows the name of the application in the title of the window; keep the leading blank.</extracomment>
        <translation> – Processamento em lote</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>One or more errors have occured!</source>
        <translation>Ocorreram um ou mais erros!</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>ANALYZING</source>
        <translation>ANALISANDO</translation>
    </message>
    <message>
        <source>DONE</source>
        <translation>CONCLUÍDO</translation>
    </message>
    <message>
        <source>NOT ENOUGH FREE SPACE</source>
        <translation>ESPAÇO LIVRE INSUFICIENTE</translation>
    </message>
    <message>
        <source>Not enough free space</source>
        <translation>Espaço livre insuficiente</translation>
    </message>
    <message>
        <source>&lt;H3&gt;Not enough free space&lt;/H3&gt;Conversion paused.&lt;br&gt;Free up space and click &quot;Resume&quot;.&lt;br&gt;To stop conversion, click &quot;Stop&quot;.</source>
        <translation>&lt;H3&gt;Espaço livre insuficiente&lt;/H3&gt;A conversão está pausada.&lt;br&gt;Libere espaço e clique em “Continuar”.&lt;br&gt;Para encerrar a conversão, clique em “Parar”.</translation>
    </message>
</context>
<context>
    <name>BatchWorker</name>
    <message>
        <source>COPYING IMAGE FILES</source>
        <translation>COPIANDO ARQUIVOS DE IMAGEM</translation>
    </message>
    <message>
        <source>COPYING TEXT FILES</source>
        <translation>COPIANDO ARQUIVOS DE TEXTO</translation>
    </message>
    <message>
        <source>COPYING NON-CONVERTED CONTENT</source>
        <translation>COPIANDO CONTEÚDO NÃO CONVERTIDO</translation>
    </message>
    <message>
        <source>ANALYZING</source>
        <translation>ANALISANDO</translation>
    </message>
    <message>
        <source>Can not convert, because the duration is to long. Please reduce the conversion sample rate and try again: </source>
        <translation>Não é possível converter porque a duração é longa demais. Reduza a taxa de amostragem e tente novamente: </translation>
    </message>
    <message>
        <source>Can not convert: </source>
        <translation>Não é possível converter: </translation>
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
        <translation>REGISTRO DE ERROS</translation>
    </message>
    <message>
        <source>Errors of the conversion</source>
        <translation>Erros de conversão</translation>
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
        <translation>Duração do fade-in</translation>
    </message>
    <message>
        <source>Length of the fade-out</source>
        <translation>Duração do fade-out</translation>
    </message>
    <message>
        <source>Longer fade-in</source>
        <translation>Aumentar o fade-in</translation>
    </message>
    <message>
        <source>Longer fade-out</source>
        <translation>Aumentar o fade-out</translation>
    </message>
    <message>
        <source>Shorter fade-in</source>
        <translation>Diminuir o fade-in</translation>
    </message>
    <message>
        <source>Shorter fade-out</source>
        <translation>Diminuir o fade-out</translation>
    </message>
</context>
<context>
    <name>GeneralOutput</name>
    <message>
        <source>Settings error, can not create: </source>
        <translation>Erro de configuração, não é possível criar: </translation>
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
        <translation>Abrir a pasta com arquivos de áudio/vídeo</translation>
    </message>
    <message>
        <source>&lt;H2&gt;&lt;center&gt;Drop the audio/video files&lt;br&gt;and folders here&lt;br&gt;&lt;bold&gt;+&lt;/bold&gt;&lt;/center&gt;&lt;/H2&gt;</source>
        <translation>&lt;H2&gt;&lt;center&gt;Solte aqui os arquivos de áudio/vídeo&lt;br&gt;e as pastas&lt;br&gt;&lt;bold&gt;+&lt;/bold&gt;&lt;/center&gt;&lt;/H2&gt;</translation>
    </message>
    <message>
        <source>Change destination folder...</source>
        <translation>Alterar a pasta de destino…</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Redefinir</translation>
    </message>
    <message>
        <source>Destination folder</source>
        <translation>Pasta de destino</translation>
    </message>
    <message>
        <source>Opens the destination folder in finder</source>
        <translation>Abre a pasta de destino no gerenciador de arquivos</translation>
    </message>
    <message>
        <source>Open the destination folder</source>
        <translation>Abrir a pasta de destino</translation>
    </message>
    <message>
        <source>Destination:</source>
        <translation>Destino:</translation>
    </message>
    <message>
        <source>Tracks</source>
        <translation>Faixas</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>Converter</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configurações</translation>
    </message>
    <message>
        <source>Set destination folder</source>
        <translation>Definir a pasta de destino</translation>
    </message>
    <message>
        <source>Files with unreadable names were left out: %1</source>
        <translation>Arquivos com nomes ilegíveis foram ignorados: %1</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erro</translation>
    </message>
    <message>
        <source>Can not access the destination folder.
Please verify the destination.</source>
        <translation>Não é possível acessar a pasta de destino.
Verifique o destino.</translation>
    </message>
    <message>
        <source>WAITING FOR THE PREVIOUS CONVERSION</source>
        <translation>AGUARDANDO A CONVERSÃO ANTERIOR</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posição</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproduzir</translation>
    </message>
    <message>
        <source>Remove from list</source>
        <translation>Remover da lista</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>Reproduzir ou pausar</translation>
    </message>
    <message>
        <source>%1 media file</source>
        <translation>%1 arquivo de mídia</translation>
    </message>
    <message>
        <source>%1 media files</source>
        <translation>%1 arquivos de mídia</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Finishing the tags of the converted files…</source>
        <translation>Finalizando os metadados dos arquivos convertidos…</translation>
    </message>
</context>
</TS>
