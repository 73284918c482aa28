<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
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
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>1 (Mono)</source>
        <translation>1 (モノラル)</translation>
    </message>
    <message>
        <source>2 (Stereo)</source>
        <translation>2 (ステレオ)</translation>
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
        <translation>ビットレート</translation>
    </message>
    <message>
        <source>Bits per Sample:</source>
        <translation>量子化ビット数:</translation>
    </message>
    <message>
        <source>Channels:</source>
        <translation>チャンネル:</translation>
    </message>
    <message>
        <source>Quality:</source>
        <translation>音質:</translation>
    </message>
    <message>
        <source>Copy meta tags (id3) from source</source>
        <translation>ソースのタグ (ID3) をコピー</translation>
    </message>
    <message>
        <source>Copy image files from source</source>
        <translation>ソースの画像ファイルをコピー</translation>
    </message>
    <message>
        <source>Copy text files from source</source>
        <translation>ソースのテキストファイルをコピー</translation>
    </message>
    <message>
        <source>Copy entire non-converted content from source</source>
        <translation>変換しないファイルもすべてソースからコピー</translation>
    </message>
    <message>
        <source>Preserve folder structure of the source</source>
        <translation>ソースのフォルダー構造を保持</translation>
    </message>
    <message>
        <source>Trim silence from start and end</source>
        <translation>先頭と末尾の無音部分を削除</translation>
    </message>
    <message>
        <source>Play sound</source>
        <translation>サウンドを鳴らす</translation>
    </message>
    <message>
        <source>Open the destination folder</source>
        <translation>保存先フォルダーを開く</translation>
    </message>
    <message>
        <source>Clear the list</source>
        <translation>リストをクリア</translation>
    </message>
    <message>
        <source>General</source>
        <translation>全般</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>処理</translation>
    </message>
    <message>
        <source>Opens the destination folder in finder</source>
        <translation>保存先フォルダーをファイルマネージャーで開きます</translation>
    </message>
    <message>
        <source>Sample Rate:</source>
        <translation>サンプルレート:</translation>
    </message>
    <message>
        <source>Source / Destination Settings</source>
        <translation>ソースと保存先の設定</translation>
    </message>
    <message>
        <source>After Conversion</source>
        <translation>変換後の動作</translation>
    </message>
    <message>
        <source>WAV Settings</source>
        <translation>WAV の設定</translation>
    </message>
    <message>
        <source>M4A Settings</source>
        <translation>M4A の設定</translation>
    </message>
    <message>
        <source>MP3 Settings</source>
        <translation>MP3 の設定</translation>
    </message>
    <message>
        <source>Unknown Settings</source>
        <translation>不明な設定</translation>
    </message>
    <message>
        <source>Volume level normalization (in %)</source>
        <translation>音量のノーマライズ (%)</translation>
    </message>
    <message>
        <source>Level in percent</source>
        <translation>レベル (%)</translation>
    </message>
    <message>
        <source>Fade In &amp;&amp; Out (in seconds)</source>
        <extracomment>The ampersand is doubled to be shown.</extracomment>
        <translation>フェードイン/フェードアウト (秒)</translation>
    </message>
</context>
<context>
    <name>BatchDialog</name>
    <message>
        <source> Batch Process</source>
        <extracomment>Follows the name of the application in the title of the window; keep the leading blank.</extracomment>
        <translation> - 一括処理</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>One or more errors have occured!</source>
        <translation>エラーが発生しました。</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>再開</translation>
    </message>
    <message>
        <source>ANALYZING</source>
        <translation>解析中</translation>
    </message>
    <message>
        <source>DONE</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>NOT ENOUGH FREE SPACE</source>
        <translation>空き容量不足</translation>
    </message>
    <message>
        <source>Not enough free space</source>
        <translation>空き容量が足りません</translation>
    </message>
    <message>
        <source>&lt;H3&gt;Not enough free space&lt;/H3&gt;Conversion paused.&lt;br&gt;Free up space and click &quot;Resume&quot;.&lt;br&gt;To stop conversion, click &quot;Stop&quot;.</source>
        <translation>&lt;H3&gt;空き容量が足りません&lt;/H3&gt;変換を一時停止しました。&lt;br&gt;空き容量を増やしてから「再開」をクリックしてください。&lt;br&gt;変換を終了するには「停止」をクリックしてください。</translation>
    </message>
</context>
<context>
    <name>BatchWorker</name>
    <message>
        <source>COPYING IMAGE FILES</source>
        <translation>画像ファイルをコピー中</translation>
    </message>
    <message>
        <source>COPYING TEXT FILES</source>
        <translation>テキストファイルをコピー中</translation>
    </message>
    <message>
        <source>COPYING NON-CONVERTED CONTENT</source>
        <translation>変換しないファイルをコピー中</translation>
    </message>
    <message>
        <source>ANALYZING</source>
        <translation>解析中</translation>
    </message>
    <message>
        <source>Can not convert, because the duration is to long. Please reduce the conversion sample rate and try again: </source>
        <translation>長すぎるため変換できません。サンプルレートを下げてもう一度お試しください: </translation>
    </message>
    <message>
        <source>Can not convert: </source>
        <translation>変換できません: </translation>
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
        <translation>エラーログ</translation>
    </message>
    <message>
        <source>Errors of the conversion</source>
        <translation>変換時のエラー</translation>
    </message>
    <message>
        <source>&amp;Ok</source>
        <translation>OK(&amp;O)</translation>
    </message>
</context>
<context>
    <name>FadeWidget</name>
    <message>
        <source>Length of the fade-in</source>
        <translation>フェードインの長さ</translation>
    </message>
    <message>
        <source>Length of the fade-out</source>
        <translation>フェードアウトの長さ</translation>
    </message>
    <message>
        <source>Longer fade-in</source>
        <translation>フェードインを長く</translation>
    </message>
    <message>
        <source>Longer fade-out</source>
        <translation>フェードアウトを長く</translation>
    </message>
    <message>
        <source>Shorter fade-in</source>
        <translation>フェードインを短く</translation>
    </message>
    <message>
        <source>Shorter fade-out</source>
        <translation>フェードアウトを短く</translation>
    </message>
</context>
<context>
    <name>GeneralOutput</name>
    <message>
        <source>Settings error, can not create: </source>
        <translation>設定エラーのため作成できません: </translation>
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
        <translation>クリックして音声/動画のフォルダーを開く</translation>
    </message>
    <message>
        <source>&lt;H2&gt;&lt;center&gt;Drop the audio/video files&lt;br&gt;and folders here&lt;br&gt;&lt;bold&gt;+&lt;/bold&gt;&lt;/center&gt;&lt;/H2&gt;</source>
        <translation>&lt;H2&gt;&lt;center&gt;音声/動画ファイルや&lt;br&gt;フォルダーをここにドロップ&lt;br&gt;&lt;bold&gt;+&lt;/bold&gt;&lt;/center&gt;&lt;/H2&gt;</translation>
    </message>
    <message>
        <source>Change destination folder...</source>
        <translation>保存先フォルダーを変更...</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>Destination folder</source>
        <translation>保存先フォルダー</translation>
    </message>
    <message>
        <source>Opens the destination folder in finder</source>
        <translation>保存先フォルダーをファイルマネージャーで開きます</translation>
    </message>
    <message>
        <source>Open the destination folder</source>
        <translation>保存先フォルダーを開く</translation>
    </message>
    <message>
        <source>Destination:</source>
        <translation>保存先:</translation>
    </message>
    <message>
        <source>Tracks</source>
        <translation>トラック</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>変換</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Set destination folder</source>
        <translation>保存先フォルダーを選択</translation>
    </message>
    <message>
        <source>Files with unreadable names were left out: %1</source>
        <translation>名前を読み取れないファイルを除外しました: %1</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Can not access the destination folder.
Please verify the destination.</source>
        <translation>保存先フォルダーにアクセスできません。
保存先を確認してください。</translation>
    </message>
    <message>
        <source>WAITING FOR THE PREVIOUS CONVERSION</source>
        <translation>前の変換が終わるのを待っています</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>再生位置</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>再生</translation>
    </message>
    <message>
        <source>Remove from list</source>
        <translation>リストから削除</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>再生/一時停止</translation>
    </message>
    <message>
        <source>%1 media file</source>
        <translation>メディアファイル %1 個</translation>
    </message>
    <message>
        <source>%1 media files</source>
        <translation>メディアファイル %1 個</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Finishing the tags of the converted files…</source>
        <translation>変換したファイルのタグを仕上げています…</translation>
    </message>
</context>
</TS>
