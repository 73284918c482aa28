<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
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
        <translation> - 设置</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>1 (Mono)</source>
        <translation>1(单声道)</translation>
    </message>
    <message>
        <source>2 (Stereo)</source>
        <translation>2(立体声)</translation>
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
        <translation>比特率</translation>
    </message>
    <message>
        <source>Bits per Sample:</source>
        <translation>位深度:</translation>
    </message>
    <message>
        <source>Channels:</source>
        <translation>声道:</translation>
    </message>
    <message>
        <source>Quality:</source>
        <translation>质量:</translation>
    </message>
    <message>
        <source>Copy meta tags (id3) from source</source>
        <translation>复制源文件的元数据标签 (ID3)</translation>
    </message>
    <message>
        <source>Copy image files from source</source>
        <translation>复制源中的图片文件</translation>
    </message>
    <message>
        <source>Copy text files from source</source>
        <translation>复制源中的文本文件</translation>
    </message>
    <message>
        <source>Copy entire non-converted content from source</source>
        <translation>复制源中所有未转换的内容</translation>
    </message>
    <message>
        <source>Preserve folder structure of the source</source>
        <translation>保留源的文件夹结构</translation>
    </message>
    <message>
        <source>Trim silence from start and end</source>
        <translation>裁剪首尾的静音</translation>
    </message>
    <message>
        <source>Play sound</source>
        <translation>播放提示音</translation>
    </message>
    <message>
        <source>Open the destination folder</source>
        <translation>打开目标文件夹</translation>
    </message>
    <message>
        <source>Clear the list</source>
        <translation>清空列表</translation>
    </message>
    <message>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>处理</translation>
    </message>
    <message>
        <source>Opens the destination folder in finder</source>
        <translation>在文件管理器中打开目标文件夹</translation>
    </message>
    <message>
        <source>Sample Rate:</source>
        <translation>采样率:</translation>
    </message>
    <message>
        <source>Source / Destination Settings</source>
        <translation>源与目标设置</translation>
    </message>
    <message>
        <source>After Conversion</source>
        <translation>转换完成后</translation>
    </message>
    <message>
        <source>WAV Settings</source>
        <translation>WAV 设置</translation>
    </message>
    <message>
        <source>M4A Settings</source>
        <translation>M4A 设置</translation>
    </message>
    <message>
        <source>MP3 Settings</source>
        <translation>MP3 设置</translation>
    </message>
    <message>
        <source>Unknown Settings</source>
        <translation>未知设置</translation>
    </message>
    <message>
        <source>Volume level normalization (in %)</source>
        <translation>音量标准化 (%)</translation>
    </message>
    <message>
        <source>Level in percent</source>
        <translation>电平百分比</translation>
    </message>
    <message>
        <source>Fade In &amp;&amp; Out (in seconds)</source>
        <extracomment>The ampersand is doubled to be shown.</extracomment>
        <translation>淡入和淡出(秒)</translation>
    </message>
</context>
<context>
    <name>BatchDialog</name>
    <message>
        <source> Batch Process</source>
        <extracomment>Follows the name of the application in the title of the window; keep the leading blank.</extracomment>
        <translation> - 批处理</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>One or more errors have occured!</source>
        <translation>发生了一个或多个错误!</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>继续</translation>
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
        <translation>可用空间不足</translation>
    </message>
    <message>
        <source>Not enough free space</source>
        <translation>可用空间不足</translation>
    </message>
    <message>
        <source>&lt;H3&gt;Not enough free space&lt;/H3&gt;Conversion paused.&lt;br&gt;Free up space and click &quot;Resume&quot;.&lt;br&gt;To stop conversion, click &quot;Stop&quot;.</source>
        <translation>&lt;H3&gt;可用空间不足&lt;/H3&gt;转换已暂停。&lt;br&gt;请释放一些空间，然后点击“继续”。&lt;br&gt;要结束转换，请点击“停止”。</translation>
    </message>
</context>
<context>
    <name>BatchWorker</name>
    <message>
        <source>COPYING IMAGE FILES</source>
        <translation>正在复制图片文件</translation>
    </message>
    <message>
        <source>COPYING TEXT FILES</source>
        <translation>正在复制文本文件</translation>
    </message>
    <message>
        <source>COPYING NON-CONVERTED CONTENT</source>
        <translation>正在复制未转换的内容</translation>
    </message>
    <message>
        <source>ANALYZING</source>
        <translation>正在分析</translation>
    </message>
    <message>
        <source>Can not convert, because the duration is to long. Please reduce the conversion sample rate and try again: </source>
        <translation>时长过长,无法转换。请降低采样率后重试: </translation>
    </message>
    <message>
        <source>Can not convert: </source>
        <translation>无法转换: </translation>
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
        <translation>错误日志</translation>
    </message>
    <message>
        <source>Errors of the conversion</source>
        <translation>转换错误</translation>
    </message>
    <message>
        <source>&amp;Ok</source>
        <translation>确定(&amp;O)</translation>
    </message>
</context>
<context>
    <name>FadeWidget</name>
    <message>
        <source>Length of the fade-in</source>
        <translation>淡入长度</translation>
    </message>
    <message>
        <source>Length of the fade-out</source>
        <translation>淡出长度</translation>
    </message>
    <message>
        <source>Longer fade-in</source>
        <translation>延长淡入</translation>
    </message>
    <message>
        <source>Longer fade-out</source>
        <translation>延长淡出</translation>
    </message>
    <message>
        <source>Shorter fade-in</source>
        <translation>缩短淡入</translation>
    </message>
    <message>
        <source>Shorter fade-out</source>
        <translation>缩短淡出</translation>
    </message>
</context>
<context>
    <name>GeneralOutput</name>
    <message>
        <source>Settings error, can not create: </source>
        <translation>设置有误,无法创建: </translation>
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
        <translation>点击打开含有音频/视频文件的文件夹</translation>
    </message>
    <message>
        <source>&lt;H2&gt;&lt;center&gt;Drop the audio/video files&lt;br&gt;and folders here&lt;br&gt;&lt;bold&gt;+&lt;/bold&gt;&lt;/center&gt;&lt;/H2&gt;</source>
        <translation>&lt;H2&gt;&lt;center&gt;将音频/视频文件&lt;br&gt;和文件夹拖放到此处&lt;br&gt;&lt;bold&gt;+&lt;/bold&gt;&lt;/center&gt;&lt;/H2&gt;</translation>
    </message>
    <message>
        <source>Change destination folder...</source>
        <translation>更改目标文件夹...</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重置</translation>
    </message>
    <message>
        <source>Destination folder</source>
        <translation>目标文件夹</translation>
    </message>
    <message>
        <source>Opens the destination folder in finder</source>
        <translation>在文件管理器中打开目标文件夹</translation>
    </message>
    <message>
        <source>Open the destination folder</source>
        <translation>打开目标文件夹</translation>
    </message>
    <message>
        <source>Destination:</source>
        <translation>目标:</translation>
    </message>
    <message>
        <source>Tracks</source>
        <translation>曲目</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>转换</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Set destination folder</source>
        <translation>设置目标文件夹</translation>
    </message>
    <message>
        <source>Files with unreadable names were left out: %1</source>
        <translation>已略过文件名无法读取的文件:%1</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Can not access the destination folder.
Please verify the destination.</source>
        <translation>无法访问目标文件夹。
请检查目标文件夹。</translation>
    </message>
    <message>
        <source>WAITING FOR THE PREVIOUS CONVERSION</source>
        <translation>正在等待上一次转换完成</translation>
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
        <translation>从列表中移除</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>播放或暂停</translation>
    </message>
    <message>
        <source>%1 media file</source>
        <translation>%1 个媒体文件</translation>
    </message>
    <message>
        <source>%1 media files</source>
        <translation>%1 个媒体文件</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Finishing the tags of the converted files…</source>
        <translation>正在完成已转换文件的标签写入…</translation>
    </message>
</context>
</TS>
