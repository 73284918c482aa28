<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW">
<context>
    <name>AppUpdateDialog</name>
    <message>
        <source> Updates Notification</source>
        <translation> - 更新通知</translation>
    </message>
    <message>
        <source>Check for updates on start</source>
        <translation>啟動時檢查更新</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
</context>
<context>
    <name>QMMultiMedia::MediaSearchDialog</name>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>&lt;CENTER&gt;&lt;H2&gt;Searching for the media files.&lt;br&gt;Please, wait...&lt;/H2&gt;&lt;/CENTER&gt;</source>
        <translation>&lt;CENTER&gt;&lt;H2&gt;正在尋找媒體檔。&lt;br&gt;請稍候…&lt;/H2&gt;&lt;/CENTER&gt;</translation>
    </message>
    <message>
        <source>&lt;H3&gt;Video Files: %1&lt;BR&gt;Audio Files: %2&lt;BR&gt;Image Files: %3&lt;BR&gt;Text Files: %4&lt;BR&gt;Other Files: %5&lt;BR&gt;&lt;/H3&gt;</source>
        <translation>&lt;H3&gt;視訊檔: %1&lt;BR&gt;音訊檔: %2&lt;BR&gt;圖片檔: %3&lt;BR&gt;文字檔: %4&lt;BR&gt;其他檔案: %5&lt;BR&gt;&lt;/H3&gt;</translation>
    </message>
</context>
<context>
    <name>QMWidgets::AboutDialog</name>
    <message>
        <source> Info</source>
        <translation> - 資訊</translation>
    </message>
    <message>
        <source>About the program</source>
        <translation>關於本程式</translation>
    </message>
    <message>
        <source>Legal notices</source>
        <translation>法律聲明</translation>
    </message>
    <message>
        <source>&amp;Ok</source>
        <translation>確定(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Legal Notices</source>
        <translation>法律聲明(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>返回(&amp;B)</translation>
    </message>
</context>
<context>
    <name>QMWidgets::App</name>
    <message>
        <source>&lt;H3&gt;This Application Uses:&lt;/H3&gt;</source>
        <translation>&lt;H3&gt;本應用程式使用了:&lt;/H3&gt;</translation>
    </message>
    <message>
        <source>About</source>
        <translation>關於</translation>
    </message>
    <message>
        <source>&lt;CENTER&gt;&lt;H2&gt;The newer version </source>
        <translation>&lt;CENTER&gt;&lt;H2&gt;有較新的版本 </translation>
    </message>
    <message>
        <source> of </source>
        <translation> 的 </translation>
    </message>
    <message>
        <source> is available.&lt;br&gt;Get the newest version?&lt;/H2&gt;&lt;/CENTER&gt;</source>
        <translation> 可供使用。&lt;br&gt;要取得最新版本嗎?&lt;/H2&gt;&lt;/CENTER&gt;</translation>
    </message>
    <message>
        <source>&lt;CENTER&gt;&lt;H2&gt;You are using the latest version available.&lt;br&gt;Go to the app web page anyway?&lt;/H2&gt;&lt;/CENTER&gt;</source>
        <translation>&lt;CENTER&gt;&lt;H2&gt;您使用的已是最新版本。&lt;br&gt;仍要前往應用程式的網頁嗎?&lt;/H2&gt;&lt;/CENTER&gt;</translation>
    </message>
</context>
<context>
    <name>QMWidgets::AppCatalog</name>
    <message>
        <source>Calderin WAV - turns audio and video files into WAV files</source>
        <translation>Calderin WAV - 將音訊和影片轉換為 WAV 檔案</translation>
    </message>
    <message>
        <source>Calderin M4A - turns audio and video files into M4A files</source>
        <translation>Calderin M4A - 將音訊和影片轉換為 M4A 檔案</translation>
    </message>
    <message>
        <source>Calderin MP3 - turns audio and video files into MP3 files</source>
        <translation>Calderin MP3 - 將音訊和影片轉換為 MP3 檔案</translation>
    </message>
    <message>
        <source>Calderin Recorder - records any input of the computer</source>
        <translation>Calderin Recorder - 錄製電腦的任何輸入</translation>
    </message>
    <message>
        <source>Calderin Timecode - reads LTC timecode from audio and video</source>
        <translation>Calderin Timecode - 從音訊和影片讀取 LTC 時間碼</translation>
    </message>
    <message>
        <source>Calderin MIDI - shows, plays and edits MIDI files</source>
        <translation>Calderin MIDI - 顯示、播放和編輯 MIDI 檔案</translation>
    </message>
    <message>
        <source>Calderin Metronome - keeps the beat in any time signature</source>
        <translation>Calderin Metronome - 任何拍號的節拍器</translation>
    </message>
    <message>
        <source>Calderin Guitar - tuner, chords and scales for the guitar</source>
        <translation>Calderin Guitar - 吉他調音器、和弦與音階</translation>
    </message>
    <message>
        <source>Calderin Bass - tuner and scales for the bass guitar</source>
        <translation>Calderin Bass - 貝斯調音器與音階</translation>
    </message>
    <message>
        <source>Calderin Ukulele - tuner and chords for the ukulele</source>
        <translation>Calderin Ukulele - 烏克麗麗調音器與和弦</translation>
    </message>
    <message>
        <source>Calderin Mandolin - tuner and chords for the mandolin</source>
        <translation>Calderin Mandolin - 曼陀林調音器與和弦</translation>
    </message>
    <message>
        <source>Calderin Banjo - tuner and chords for the banjo</source>
        <translation>Calderin Banjo - 斑鳩琴調音器與和弦</translation>
    </message>
    <message>
        <source>Calderin Balalaika - tuner and chords for the balalaika</source>
        <translation>Calderin Balalaika - 巴拉萊卡琴調音器與和弦</translation>
    </message>
    <message>
        <source>Calderin Piano - chords and scales on the keyboard</source>
        <translation>Calderin Piano - 鍵盤上的和弦與音階</translation>
    </message>
    <message>
        <source>Calderin Violin - tuner and fingering for the violin</source>
        <translation>Calderin Violin - 小提琴調音器與指法</translation>
    </message>
    <message>
        <source>Calderin Viewer - leafs through folders of pictures</source>
        <translation>Calderin Viewer - 瀏覽資料夾中的圖片</translation>
    </message>
    <message>
        <source>Calderin Notes - puts notes and arrows on pictures</source>
        <translation>Calderin Notes - 在圖片上加入註解和箭頭</translation>
    </message>
    <message>
        <source>Calderin Cropper - cuts pictures out of the screen</source>
        <translation>Calderin Cropper - 從螢幕擷取圖片</translation>
    </message>
    <message>
        <source>Calderin Measurer - measures sizes and distances on the screen</source>
        <translation>Calderin Measurer - 測量螢幕上的大小和距離</translation>
    </message>
    <message>
        <source>Calderin Palette - reduces and tunes the colours of pictures</source>
        <translation>Calderin Palette - 減少並調整圖片的色彩</translation>
    </message>
    <message>
        <source>Calderin Animation - makes animations of pictures</source>
        <translation>Calderin Animation - 用圖片製作動畫</translation>
    </message>
    <message>
        <source>Calderin FTP - moves files to servers and back</source>
        <translation>Calderin FTP - 與伺服器互傳檔案</translation>
    </message>
    <message>
        <source>Calderin Contacts - reads and writes contact cards</source>
        <translation>Calderin Contacts - 讀取和寫入聯絡人名片</translation>
    </message>
    <message>
        <source>Calderin Cipher - locks files with a password</source>
        <translation>Calderin Cipher - 以密碼鎖定檔案</translation>
    </message>
    <message>
        <source>Calderin Style - writes style sheets and tries them out</source>
        <translation>Calderin Style - 撰寫並試用樣式表</translation>
    </message>
    <message>
        <source>Calderin Minimizer - makes scripts for the web smaller</source>
        <translation>Calderin Minimizer - 縮小網頁指令碼</translation>
    </message>
</context>
<context>
    <name>QMWidgets::AppMenu</name>
    <message>
        <source>Rate this App</source>
        <translation>為此應用程式評分</translation>
    </message>
    <message>
        <source>Intro</source>
        <translation>簡介</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>分享</translation>
    </message>
    <message>
        <source>Join Us</source>
        <translation>追蹤我們</translation>
    </message>
    <message>
        <source>More Apps</source>
        <translation>更多應用程式</translation>
    </message>
    <message>
        <source>Contact Us</source>
        <translation>聯絡我們</translation>
    </message>
    <message>
        <source>Support Page</source>
        <translation>支援頁面</translation>
    </message>
    <message>
        <source>Check Updates</source>
        <translation>檢查更新</translation>
    </message>
    <message>
        <source>Privacy Policy</source>
        <translation>隱私權政策</translation>
    </message>
    <message>
        <source>About</source>
        <translation>關於</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>結束</translation>
    </message>
</context>
<context>
    <name>QMWidgets::CssDoc</name>
    <message>
        <source>Style sheet</source>
        <translation>樣式表</translation>
    </message>
</context>
<context>
    <name>QMWidgets::CssEditor</name>
    <message>
        <source>CSS Style Editor</source>
        <translation>CSS 樣式編輯器</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>就緒</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>檔案(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>說明(&amp;H)</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>處理</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>開啟(&amp;O)...</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>儲存(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;SetInfo</source>
        <translation>設定資訊(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>套用(&amp;P)</translation>
    </message>
    <message>
        <source>S&amp;ave As...</source>
        <translation>另存新檔(&amp;A)...</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>關於(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>重設(&amp;R)</translation>
    </message>
    <message>
        <source>About</source>
        <translation>關於</translation>
    </message>
</context>
<context>
    <name>QMWidgets::DropWidget</name>
    <message>
        <source>&lt;H1&gt;Drop the photos here&lt;/H1&gt;</source>
        <translation>&lt;H1&gt;將相片拖放到這裡&lt;/H1&gt;</translation>
    </message>
    <message>
        <source>Click to open the photos</source>
        <translation>按一下以開啟相片</translation>
    </message>
    <message>
        <source>Open files</source>
        <translation>開啟檔案</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>開啟資料夾</translation>
    </message>
</context>
<context>
    <name>QMWidgets::HelpDialog</name>
    <message>
        <source>&amp;Close</source>
        <translation>關閉(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Always skip intro</source>
        <translation>一律略過簡介(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Watch videos</source>
        <translation>觀看影片(&amp;W)</translation>
    </message>
    <message>
        <source> Introduction</source>
        <translation> - 簡介</translation>
    </message>
</context>
<context>
    <name>QMWidgets::HelpViewArea</name>
    <message>
        <source>Slide %1</source>
        <translation>投影片 %1</translation>
    </message>
</context>
<context>
    <name>QMWidgets::JoinDialog</name>
    <message>
        <source>Join us</source>
        <translation>追蹤我們</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>關閉(&amp;C)</translation>
    </message>
</context>
<context>
    <name>QMWidgets::JoinReminderDialog</name>
    <message>
        <source>Join Us</source>
        <translation>追蹤我們</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>關閉(&amp;C)</translation>
    </message>
</context>
<context>
    <name>QMWidgets::JoinWidget</name>
    <message>
        <source>Follow us and stay informed&lt;br&gt;about our</source>
        <translation>追蹤我們,隨時掌握&lt;br&gt;我們的</translation>
    </message>
    <message>
        <source>1. Important News</source>
        <translation>1. 重要消息</translation>
    </message>
    <message>
        <source>2. New APPs</source>
        <translation>2. 新應用程式</translation>
    </message>
    <message>
        <source>3. APP Updates</source>
        <translation>3. 應用程式更新</translation>
    </message>
    <message>
        <source>and more...</source>
        <translation>以及更多內容...</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>電子郵件</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>資訊</translation>
    </message>
    <message>
        <source>&lt;H3&gt;To join us, please &quot;Like&quot; %1 on Facebook.&lt;/H3&gt;Thank you!</source>
        <translation>&lt;H3&gt;若要追蹤我們,請在 Facebook 上對 %1 按「讚」。&lt;/H3&gt;謝謝!</translation>
    </message>
</context>
<context>
    <name>QMWidgets::MMessageBox</name>
    <message>
        <source>Ok</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>中止</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>重試</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>忽略</translation>
    </message>
    <message>
        <source>YesAll</source>
        <translation>全部皆是</translation>
    </message>
    <message>
        <source>NoAll</source>
        <translation>全部皆否</translation>
    </message>
</context>
<context>
    <name>QMWidgets::MoreAppsButton</name>
    <message>
        <source>More</source>
        <translation>更多</translation>
    </message>
</context>
<context>
    <name>QMWidgets::PromoAdsBar</name>
    <message>
        <source>Close the banner</source>
        <translation>關閉橫幅</translation>
    </message>
</context>
<context>
    <name>QMWidgets::PromoMenuBar</name>
    <message>
        <source>More</source>
        <translation>更多</translation>
    </message>
    <message>
        <source>Introduction</source>
        <translation>簡介</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>分享</translation>
    </message>
    <message>
        <source>Join Us</source>
        <translation>追蹤我們</translation>
    </message>
    <message>
        <source>More Apps</source>
        <translation>更多應用程式</translation>
    </message>
    <message>
        <source>Rate App</source>
        <translation>為應用程式評分</translation>
    </message>
    <message>
        <source>App Menu</source>
        <translation>應用程式選單</translation>
    </message>
</context>
<context>
    <name>QMWidgets::RateAppStoreDialog</name>
    <message>
        <source>Rate &quot;%1&quot;</source>
        <translation>為「%1」評分</translation>
    </message>
    <message>
        <source>Enjoying &quot;%1&quot; ?</source>
        <translation>喜歡「%1」嗎?</translation>
    </message>
    <message>
        <source>Please rate the app on the App Store.&lt;br&gt;This will help us improve &lt;br&gt;the app&apos;s features in the future.</source>
        <translation>請在 App Store 為本應用程式評分。&lt;br&gt;這將有助於我們&lt;br&gt;日後改進應用程式的功能。</translation>
    </message>
    <message>
        <source>&amp;Rate It Now</source>
        <translation>立即評分(&amp;R)</translation>
    </message>
</context>
<context>
    <name>QMWidgets::RateMailDialog</name>
    <message>
        <source>Feedback about &quot;%1&quot;</source>
        <translation>對「%1」的意見</translation>
    </message>
    <message>
        <source>Please rate it on the app store or send us a quick e-mail&lt;br&gt;and tell us what you didn&apos;t enjoy. &lt;br&gt;Your feedback will help us improve this app.</source>
        <translation>請在 App Store 評分,或寄一封簡短的電子郵件給我們,&lt;br&gt;告訴我們您不滿意的地方。&lt;br&gt;您的意見將有助於我們改進本應用程式。</translation>
    </message>
    <message>
        <source>&amp;Rate</source>
        <translation>評分(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Write email</source>
        <translation>撰寫電子郵件(&amp;W)</translation>
    </message>
</context>
<context>
    <name>QMWidgets::ReminderDialog</name>
    <message>
        <source>&amp;Rate</source>
        <translation>評分(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Mail</source>
        <translation>郵件(&amp;M)</translation>
    </message>
</context>
<context>
    <name>QMWidgets::ReminderStateDialog</name>
    <message>
        <source>&amp;Later</source>
        <translation>稍後再說(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Don&apos;t ask me again</source>
        <translation>不要再詢問(&amp;D)</translation>
    </message>
</context>
<context>
    <name>QMWidgets::RoundProgress</name>
    <message>
        <source>Overall progress</source>
        <translation>整體進度</translation>
    </message>
</context>
<context>
    <name>QMWidgets::TellDialog</name>
    <message>
        <source>Share %1</source>
        <translation>分享 %1</translation>
    </message>
    <message>
        <source>If you like the app&lt;br&gt;please share it with&lt;br&gt;your friends.&lt;br&gt;Thanks!</source>
        <translation>如果您喜歡本應用程式,&lt;br&gt;請與您的朋友&lt;br&gt;分享。&lt;br&gt;謝謝!</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>關閉(&amp;C)</translation>
    </message>
</context>
<context>
    <name>QMWidgets::TellReminderDialog</name>
    <message>
        <source>Share</source>
        <translation>分享</translation>
    </message>
    <message>
        <source>If you like the app %1,&lt;br&gt;Share it with Your Friends.&lt;br&gt;Thanks!</source>
        <translation>如果您喜歡 %1,&lt;br&gt;請與您的朋友分享。&lt;br&gt;謝謝!</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>關閉(&amp;C)</translation>
    </message>
</context>
<context>
    <name>QMWidgets::TellWidget</name>
    <message>
        <source>E-mail</source>
        <translation>電子郵件</translation>
    </message>
</context>
</TS>
