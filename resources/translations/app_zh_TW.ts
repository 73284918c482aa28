<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW">
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
        <translation> - 設定</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>1 (Mono)</source>
        <translation>1(單聲道)</translation>
    </message>
    <message>
        <source>2 (Stereo)</source>
        <translation>2(立體聲)</translation>
    </message>
    <message>
        <source>High</source>
        <translation>高</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>中</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>低</translation>
    </message>
    <message>
        <source>BitRate</source>
        <translation>位元率</translation>
    </message>
    <message>
        <source>Bits per Sample:</source>
        <translation>位元深度:</translation>
    </message>
    <message>
        <source>Channels:</source>
        <translation>聲道:</translation>
    </message>
    <message>
        <source>Quality:</source>
        <translation>品質:</translation>
    </message>
    <message>
        <source>Copy meta tags (id3) from source</source>
        <translation>複製來源的標籤資訊 (ID3)</translation>
    </message>
    <message>
        <source>Copy image files from source</source>
        <translation>複製來源的圖片檔</translation>
    </message>
    <message>
        <source>Copy text files from source</source>
        <translation>複製來源的文字檔</translation>
    </message>
    <message>
        <source>Copy entire non-converted content from source</source>
        <translation>複製來源中所有未轉換的內容</translation>
    </message>
    <message>
        <source>Preserve folder structure of the source</source>
        <translation>保留來源的資料夾結構</translation>
    </message>
    <message>
        <source>Trim silence from start and end</source>
        <translation>修剪開頭和結尾的靜音</translation>
    </message>
    <message>
        <source>Play sound</source>
        <translation>播放提示音</translation>
    </message>
    <message>
        <source>Open the destination folder</source>
        <translation>開啟目的地資料夾</translation>
    </message>
    <message>
        <source>Clear the list</source>
        <translation>清除清單</translation>
    </message>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>處理</translation>
    </message>
    <message>
        <source>Opens the destination folder in finder</source>
        <translation>在檔案管理員中開啟目的地資料夾</translation>
    </message>
    <message>
        <source>Sample Rate:</source>
        <translation>取樣率:</translation>
    </message>
    <message>
        <source>Source / Destination Settings</source>
        <translation>來源與目的地設定</translation>
    </message>
    <message>
        <source>After Conversion</source>
        <translation>轉換完成後</translation>
    </message>
    <message>
        <source>WAV Settings</source>
        <translation>WAV 設定</translation>
    </message>
    <message>
        <source>M4A Settings</source>
        <translation>M4A 設定</translation>
    </message>
    <message>
        <source>MP3 Settings</source>
        <translation>MP3 設定</translation>
    </message>
    <message>
        <source>Unknown Settings</source>
        <translation>未知的設定</translation>
    </message>
    <message>
        <source>Volume level normalization (in %)</source>
        <translation>音量正規化 (%)</translation>
    </message>
    <message>
        <source>Level in percent</source>
        <translation>音量百分比</translation>
    </message>
    <message>
        <source>Fade In &amp;&amp; Out (in seconds)</source>
        <extracomment>The ampersand is doubled to be shown.</extracomment>
        <translation>淡入與淡出(秒)</translation>
    </message>
</context>
<context>
    <name>BatchDialog</name>
    <message>
        <source> Batch Process</source>
        <extracomment>Follows the name of the application in the title of the window; keep the leading blank.</extracomment>
        <translation> - 批次處理</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暫停</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>One or more errors have occured!</source>
        <translation>發生一個或多個錯誤!</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>繼續</translation>
    </message>
    <message>
        <source>ANALYZING</source>
        <translation>正在分析</translation>
    </message>
    <message>
        <source>DONE</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>NOT ENOUGH FREE SPACE</source>
        <translation>可用空間不足</translation>
    </message>
    <message>
        <source>Not enough free space</source>
        <translation>可用空間不足</translation>
    </message>
    <message>
        <source>&lt;H3&gt;Not enough free space&lt;/H3&gt;Conversion paused.&lt;br&gt;Free up space and click &quot;Resume&quot;.&lt;br&gt;To stop conversion, click &quot;Stop&quot;.</source>
        <translation>&lt;H3&gt;可用空間不足&lt;/H3&gt;轉換已暫停。&lt;br&gt;請釋出一些空間，然後按一下「繼續」。&lt;br&gt;若要結束轉換，請按一下「停止」。</translation>
    </message>
</context>
<context>
    <name>BatchWorker</name>
    <message>
        <source>COPYING IMAGE FILES</source>
        <translation>正在複製圖片檔</translation>
    </message>
    <message>
        <source>COPYING TEXT FILES</source>
        <translation>正在複製文字檔</translation>
    </message>
    <message>
        <source>COPYING NON-CONVERTED CONTENT</source>
        <translation>正在複製未轉換的內容</translation>
    </message>
    <message>
        <source>ANALYZING</source>
        <translation>正在分析</translation>
    </message>
    <message>
        <source>Can not convert, because the duration is to long. Please reduce the conversion sample rate and try again: </source>
        <translation>長度過長,無法轉換。請降低取樣率後再試一次: </translation>
    </message>
    <message>
        <source>Can not convert: </source>
        <translation>無法轉換: </translation>
    </message>
</context>
<context>
    <name>DecoratedDial</name>
    <message>
        <source>min         max</source>
        <extracomment>Below the two ends of the dial; keep the distance between the words.</extracomment>
        <translation>最小               最大</translation>
    </message>
</context>
<context>
    <name>ErrorsDialog</name>
    <message>
        <source>ERRORS LOG</source>
        <translation>錯誤記錄</translation>
    </message>
    <message>
        <source>Errors of the conversion</source>
        <translation>轉換錯誤</translation>
    </message>
    <message>
        <source>&amp;Ok</source>
        <translation>確定(&amp;O)</translation>
    </message>
</context>
<context>
    <name>FadeWidget</name>
    <message>
        <source>Length of the fade-in</source>
        <translation>淡入長度</translation>
    </message>
    <message>
        <source>Length of the fade-out</source>
        <translation>淡出長度</translation>
    </message>
    <message>
        <source>Longer fade-in</source>
        <translation>加長淡入</translation>
    </message>
    <message>
        <source>Longer fade-out</source>
        <translation>加長淡出</translation>
    </message>
    <message>
        <source>Shorter fade-in</source>
        <translation>縮短淡入</translation>
    </message>
    <message>
        <source>Shorter fade-out</source>
        <translation>縮短淡出</translation>
    </message>
</context>
<context>
    <name>GeneralOutput</name>
    <message>
        <source>Settings error, can not create: </source>
        <translation>設定有誤,無法建立: </translation>
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
        <translation>按一下以開啟音訊/影片資料夾</translation>
    </message>
    <message>
        <source>&lt;H2&gt;&lt;center&gt;Drop the audio/video files&lt;br&gt;and folders here&lt;br&gt;&lt;bold&gt;+&lt;/bold&gt;&lt;/center&gt;&lt;/H2&gt;</source>
        <translation>&lt;H2&gt;&lt;center&gt;將音訊/影片檔案&lt;br&gt;和資料夾拖放到這裡&lt;br&gt;&lt;bold&gt;+&lt;/bold&gt;&lt;/center&gt;&lt;/H2&gt;</translation>
    </message>
    <message>
        <source>Change destination folder...</source>
        <translation>變更目的地資料夾...</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重設</translation>
    </message>
    <message>
        <source>Destination folder</source>
        <translation>目的地資料夾</translation>
    </message>
    <message>
        <source>Opens the destination folder in finder</source>
        <translation>在檔案管理員中開啟目的地資料夾</translation>
    </message>
    <message>
        <source>Open the destination folder</source>
        <translation>開啟目的地資料夾</translation>
    </message>
    <message>
        <source>Destination:</source>
        <translation>目的地:</translation>
    </message>
    <message>
        <source>Tracks</source>
        <translation>曲目</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>轉換</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Set destination folder</source>
        <translation>設定目的地資料夾</translation>
    </message>
    <message>
        <source>Files with unreadable names were left out: %1</source>
        <translation>已略過檔名無法讀取的檔案:%1</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>錯誤</translation>
    </message>
    <message>
        <source>Can not access the destination folder.
Please verify the destination.</source>
        <translation>無法存取目的地資料夾。
請檢查目的地。</translation>
    </message>
    <message>
        <source>WAITING FOR THE PREVIOUS CONVERSION</source>
        <translation>正在等待前一次轉換完成</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>播放位置</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>播放</translation>
    </message>
    <message>
        <source>Remove from list</source>
        <translation>從清單中移除</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>播放或暫停</translation>
    </message>
    <message>
        <source>%1 media file</source>
        <translation>%1 個媒體檔</translation>
    </message>
    <message>
        <source>%1 media files</source>
        <translation>%1 個媒體檔</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Finishing the tags of the converted files…</source>
        <translation>正在完成已轉換檔案的標籤寫入…</translation>
    </message>
</context>
</TS>
