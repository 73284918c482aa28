<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name>AppUpdateDialog</name>
    <message>
        <source> Updates Notification</source>
        <translation> - 更新のお知らせ</translation>
    </message>
    <message>
        <source>Check for updates on start</source>
        <translation>起動時に更新を確認する</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>No</source>
        <translation>いいえ</translation>
    </message>
</context>
<context>
    <name>QMMultiMedia::MediaSearchDialog</name>
    <message>
        <source>&amp;Cancel</source>
        <translation>キャンセル(&amp;C)</translation>
    </message>
    <message>
        <source>&lt;CENTER&gt;&lt;H2&gt;Searching for the media files.&lt;br&gt;Please, wait...&lt;/H2&gt;&lt;/CENTER&gt;</source>
        <translation>&lt;CENTER&gt;&lt;H2&gt;メディアファイルを検索しています。&lt;br&gt;お待ちください…&lt;/H2&gt;&lt;/CENTER&gt;</translation>
    </message>
    <message>
        <source>&lt;H3&gt;Video Files: %1&lt;BR&gt;Audio Files: %2&lt;BR&gt;Image Files: %3&lt;BR&gt;Text Files: %4&lt;BR&gt;Other Files: %5&lt;BR&gt;&lt;/H3&gt;</source>
        <translation>&lt;H3&gt;動画ファイル: %1&lt;BR&gt;音声ファイル: %2&lt;BR&gt;画像ファイル: %3&lt;BR&gt;テキストファイル: %4&lt;BR&gt;その他のファイル: %5&lt;BR&gt;&lt;/H3&gt;</translation>
    </message>
</context>
<context>
    <name>QMWidgets::AboutDialog</name>
    <message>
        <source> Info</source>
        <translation> - 情報</translation>
    </message>
    <message>
        <source>About the program</source>
        <translation>このプログラムについて</translation>
    </message>
    <message>
        <source>Legal notices</source>
        <translation>法的情報</translation>
    </message>
    <message>
        <source>&amp;Ok</source>
        <translation>OK(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Legal Notices</source>
        <translation>法的情報(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>戻る(&amp;B)</translation>
    </message>
</context>
<context>
    <name>QMWidgets::App</name>
    <message>
        <source>&lt;H3&gt;This Application Uses:&lt;/H3&gt;</source>
        <translation>&lt;H3&gt;このアプリケーションで使用しているもの:&lt;/H3&gt;</translation>
    </message>
    <message>
        <source>About</source>
        <translation>このアプリについて</translation>
    </message>
    <message>
        <source>&lt;CENTER&gt;&lt;H2&gt;The newer version </source>
        <translation>&lt;CENTER&gt;&lt;H2&gt;新しいバージョン </translation>
    </message>
    <message>
        <source> of </source>
        <translation> の </translation>
    </message>
    <message>
        <source> is available.&lt;br&gt;Get the newest version?&lt;/H2&gt;&lt;/CENTER&gt;</source>
        <translation> が利用できます。&lt;br&gt;最新バージョンを入手しますか?&lt;/H2&gt;&lt;/CENTER&gt;</translation>
    </message>
    <message>
        <source>&lt;CENTER&gt;&lt;H2&gt;You are using the latest version available.&lt;br&gt;Go to the app web page anyway?&lt;/H2&gt;&lt;/CENTER&gt;</source>
        <translation>&lt;CENTER&gt;&lt;H2&gt;お使いのバージョンは最新です。&lt;br&gt;アプリの Web ページを開きますか?&lt;/H2&gt;&lt;/CENTER&gt;</translation>
    </message>
</context>
<context>
    <name>QMWidgets::AppCatalog</name>
    <message>
        <source>Calderin WAV - turns audio and video files into WAV files</source>
        <translation>Calderin WAV - 音声や動画を WAV ファイルに変換</translation>
    </message>
    <message>
        <source>Calderin M4A - turns audio and video files into M4A files</source>
        <translation>Calderin M4A - 音声や動画を M4A ファイルに変換</translation>
    </message>
    <message>
        <source>Calderin MP3 - turns audio and video files into MP3 files</source>
        <translation>Calderin MP3 - 音声や動画を MP3 ファイルに変換</translation>
    </message>
    <message>
        <source>Calderin Recorder - records any input of the computer</source>
        <translation>Calderin Recorder - コンピューターのあらゆる入力を録音</translation>
    </message>
    <message>
        <source>Calderin Timecode - reads LTC timecode from audio and video</source>
        <translation>Calderin Timecode - 音声や動画から LTC タイムコードを読み取り</translation>
    </message>
    <message>
        <source>Calderin MIDI - shows, plays and edits MIDI files</source>
        <translation>Calderin MIDI - MIDI ファイルの表示、再生、編集</translation>
    </message>
    <message>
        <source>Calderin Metronome - keeps the beat in any time signature</source>
        <translation>Calderin Metronome - あらゆる拍子でテンポをキープ</translation>
    </message>
    <message>
        <source>Calderin Guitar - tuner, chords and scales for the guitar</source>
        <translation>Calderin Guitar - ギター用チューナー、コード、スケール</translation>
    </message>
    <message>
        <source>Calderin Bass - tuner and scales for the bass guitar</source>
        <translation>Calderin Bass - ベースギター用チューナーとスケール</translation>
    </message>
    <message>
        <source>Calderin Ukulele - tuner and chords for the ukulele</source>
        <translation>Calderin Ukulele - ウクレレ用チューナーとコード</translation>
    </message>
    <message>
        <source>Calderin Mandolin - tuner and chords for the mandolin</source>
        <translation>Calderin Mandolin - マンドリン用チューナーとコード</translation>
    </message>
    <message>
        <source>Calderin Banjo - tuner and chords for the banjo</source>
        <translation>Calderin Banjo - バンジョー用チューナーとコード</translation>
    </message>
    <message>
        <source>Calderin Balalaika - tuner and chords for the balalaika</source>
        <translation>Calderin Balalaika - バラライカ用チューナーとコード</translation>
    </message>
    <message>
        <source>Calderin Piano - chords and scales on the keyboard</source>
        <translation>Calderin Piano - 鍵盤で見るコードとスケール</translation>
    </message>
    <message>
        <source>Calderin Violin - tuner and fingering for the violin</source>
        <translation>Calderin Violin - バイオリン用チューナーと運指</translation>
    </message>
    <message>
        <source>Calderin Viewer - leafs through folders of pictures</source>
        <translation>Calderin Viewer - フォルダーの画像を次々に閲覧</translation>
    </message>
    <message>
        <source>Calderin Notes - puts notes and arrows on pictures</source>
        <translation>Calderin Notes - 画像にメモや矢印を追加</translation>
    </message>
    <message>
        <source>Calderin Cropper - cuts pictures out of the screen</source>
        <translation>Calderin Cropper - 画面から画像を切り抜き</translation>
    </message>
    <message>
        <source>Calderin Measurer - measures sizes and distances on the screen</source>
        <translation>Calderin Measurer - 画面上の大きさと距離を測定</translation>
    </message>
    <message>
        <source>Calderin Palette - reduces and tunes the colours of pictures</source>
        <translation>Calderin Palette - 画像の色を減らして調整</translation>
    </message>
    <message>
        <source>Calderin Animation - makes animations of pictures</source>
        <translation>Calderin Animation - 画像からアニメーションを作成</translation>
    </message>
    <message>
        <source>Calderin FTP - moves files to servers and back</source>
        <translation>Calderin FTP - サーバーとファイルを送受信</translation>
    </message>
    <message>
        <source>Calderin Contacts - reads and writes contact cards</source>
        <translation>Calderin Contacts - 連絡先カードの読み書き</translation>
    </message>
    <message>
        <source>Calderin Cipher - locks files with a password</source>
        <translation>Calderin Cipher - ファイルをパスワードで保護</translation>
    </message>
    <message>
        <source>Calderin Style - writes style sheets and tries them out</source>
        <translation>Calderin Style - スタイルシートの作成と試用</translation>
    </message>
    <message>
        <source>Calderin Minimizer - makes scripts for the web smaller</source>
        <translation>Calderin Minimizer - Web 用スクリプトを小さく圧縮</translation>
    </message>
</context>
<context>
    <name>QMWidgets::AppMenu</name>
    <message>
        <source>Rate this App</source>
        <translation>アプリを評価</translation>
    </message>
    <message>
        <source>Intro</source>
        <translation>はじめに</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>共有</translation>
    </message>
    <message>
        <source>Join Us</source>
        <translation>フォローする</translation>
    </message>
    <message>
        <source>More Apps</source>
        <translation>その他のアプリ</translation>
    </message>
    <message>
        <source>Contact Us</source>
        <translation>お問い合わせ</translation>
    </message>
    <message>
        <source>Support Page</source>
        <translation>サポートページ</translation>
    </message>
    <message>
        <source>Check Updates</source>
        <translation>更新を確認</translation>
    </message>
    <message>
        <source>Privacy Policy</source>
        <translation>プライバシーポリシー</translation>
    </message>
    <message>
        <source>About</source>
        <translation>このアプリについて</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
</context>
<context>
    <name>QMWidgets::CssDoc</name>
    <message>
        <source>Style sheet</source>
        <translation>スタイルシート</translation>
    </message>
</context>
<context>
    <name>QMWidgets::CssEditor</name>
    <message>
        <source>CSS Style Editor</source>
        <translation>CSS スタイルエディター</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>準備完了</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>処理</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>開く(&amp;O)...</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;SetInfo</source>
        <translation>情報を設定(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>適用(&amp;P)</translation>
    </message>
    <message>
        <source>S&amp;ave As...</source>
        <translation>名前を付けて保存(&amp;A)...</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>このアプリについて(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>リセット(&amp;R)</translation>
    </message>
    <message>
        <source>About</source>
        <translation>このアプリについて</translation>
    </message>
</context>
<context>
    <name>QMWidgets::DropWidget</name>
    <message>
        <source>&lt;H1&gt;Drop the photos here&lt;/H1&gt;</source>
        <translation>&lt;H1&gt;ここに写真をドロップ&lt;/H1&gt;</translation>
    </message>
    <message>
        <source>Click to open the photos</source>
        <translation>クリックして写真を開く</translation>
    </message>
    <message>
        <source>Open files</source>
        <translation>ファイルを開く</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>フォルダーを開く</translation>
    </message>
</context>
<context>
    <name>QMWidgets::HelpDialog</name>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Always skip intro</source>
        <translation>次回から表示しない(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Watch videos</source>
        <translation>動画を見る(&amp;W)</translation>
    </message>
    <message>
        <source> Introduction</source>
        <translation> - はじめに</translation>
    </message>
</context>
<context>
    <name>QMWidgets::HelpViewArea</name>
    <message>
        <source>Slide %1</source>
        <translation>スライド %1</translation>
    </message>
</context>
<context>
    <name>QMWidgets::JoinDialog</name>
    <message>
        <source>Join us</source>
        <translation>フォローする</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
</context>
<context>
    <name>QMWidgets::JoinReminderDialog</name>
    <message>
        <source>Join Us</source>
        <translation>フォローする</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
</context>
<context>
    <name>QMWidgets::JoinWidget</name>
    <message>
        <source>Follow us and stay informed&lt;br&gt;about our</source>
        <translation>フォローして最新情報を&lt;br&gt;お受け取りください</translation>
    </message>
    <message>
        <source>1. Important News</source>
        <translation>1. 重要なお知らせ</translation>
    </message>
    <message>
        <source>2. New APPs</source>
        <translation>2. 新しいアプリ</translation>
    </message>
    <message>
        <source>3. APP Updates</source>
        <translation>3. アプリの更新</translation>
    </message>
    <message>
        <source>and more...</source>
        <translation>その他いろいろ...</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>メール</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>&lt;H3&gt;To join us, please &quot;Like&quot; %1 on Facebook.&lt;/H3&gt;Thank you!</source>
        <translation>&lt;H3&gt;フォローするには、Facebook の %1 のページで「いいね!」を押してください。&lt;/H3&gt;ありがとうございます。</translation>
    </message>
</context>
<context>
    <name>QMWidgets::MMessageBox</name>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>No</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>中止</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>再試行</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>無視</translation>
    </message>
    <message>
        <source>YesAll</source>
        <translation>すべてはい</translation>
    </message>
    <message>
        <source>NoAll</source>
        <translation>すべていいえ</translation>
    </message>
</context>
<context>
    <name>QMWidgets::MoreAppsButton</name>
    <message>
        <source>More</source>
        <translation>その他</translation>
    </message>
</context>
<context>
    <name>QMWidgets::PromoAdsBar</name>
    <message>
        <source>Close the banner</source>
        <translation>バナーを閉じる</translation>
    </message>
</context>
<context>
    <name>QMWidgets::PromoMenuBar</name>
    <message>
        <source>More</source>
        <translation>その他</translation>
    </message>
    <message>
        <source>Introduction</source>
        <translation>はじめに</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>共有</translation>
    </message>
    <message>
        <source>Join Us</source>
        <translation>フォローする</translation>
    </message>
    <message>
        <source>More Apps</source>
        <translation>その他のアプリ</translation>
    </message>
    <message>
        <source>Rate App</source>
        <translation>アプリを評価</translation>
    </message>
    <message>
        <source>App Menu</source>
        <translation>アプリメニュー</translation>
    </message>
</context>
<context>
    <name>QMWidgets::RateAppStoreDialog</name>
    <message>
        <source>Rate &quot;%1&quot;</source>
        <translation>「%1」を評価</translation>
    </message>
    <message>
        <source>Enjoying &quot;%1&quot; ?</source>
        <translation>「%1」はお気に召しましたか?</translation>
    </message>
    <message>
        <source>Please rate the app on the App Store.&lt;br&gt;This will help us improve &lt;br&gt;the app&apos;s features in the future.</source>
        <translation>App Store でこのアプリを評価してください。&lt;br&gt;いただいた評価は、今後の&lt;br&gt;機能の改善に役立てます。</translation>
    </message>
    <message>
        <source>&amp;Rate It Now</source>
        <translation>今すぐ評価(&amp;R)</translation>
    </message>
</context>
<context>
    <name>QMWidgets::RateMailDialog</name>
    <message>
        <source>Feedback about &quot;%1&quot;</source>
        <translation>「%1」へのご意見</translation>
    </message>
    <message>
        <source>Please rate it on the app store or send us a quick e-mail&lt;br&gt;and tell us what you didn&apos;t enjoy. &lt;br&gt;Your feedback will help us improve this app.</source>
        <translation>App Store で評価していただくか、ご不満な点を&lt;br&gt;メールでお聞かせください。&lt;br&gt;いただいたご意見は、アプリの改善に役立てます。</translation>
    </message>
    <message>
        <source>&amp;Rate</source>
        <translation>評価する(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Write email</source>
        <translation>メールを書く(&amp;W)</translation>
    </message>
</context>
<context>
    <name>QMWidgets::ReminderDialog</name>
    <message>
        <source>&amp;Rate</source>
        <translation>評価する(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Mail</source>
        <translation>メール(&amp;M)</translation>
    </message>
</context>
<context>
    <name>QMWidgets::ReminderStateDialog</name>
    <message>
        <source>&amp;Later</source>
        <translation>後で(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Don&apos;t ask me again</source>
        <translation>今後表示しない(&amp;D)</translation>
    </message>
</context>
<context>
    <name>QMWidgets::RoundProgress</name>
    <message>
        <source>Overall progress</source>
        <translation>全体の進行状況</translation>
    </message>
</context>
<context>
    <name>QMWidgets::TellDialog</name>
    <message>
        <source>Share %1</source>
        <translation>%1 を共有</translation>
    </message>
    <message>
        <source>If you like the app&lt;br&gt;please share it with&lt;br&gt;your friends.&lt;br&gt;Thanks!</source>
        <translation>アプリを気に入っていただけましたら、&lt;br&gt;お友だちにも&lt;br&gt;お勧めください。&lt;br&gt;ありがとうございます。</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
</context>
<context>
    <name>QMWidgets::TellReminderDialog</name>
    <message>
        <source>Share</source>
        <translation>共有</translation>
    </message>
    <message>
        <source>If you like the app %1,&lt;br&gt;Share it with Your Friends.&lt;br&gt;Thanks!</source>
        <translation>%1 を気に入っていただけましたら、&lt;br&gt;お友だちにもお勧めください。&lt;br&gt;ありがとうございます。</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
</context>
<context>
    <name>QMWidgets::TellWidget</name>
    <message>
        <source>E-mail</source>
        <translation>メール</translation>
    </message>
</context>
</TS>
