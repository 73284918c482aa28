<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko">
<context>
    <name>AppUpdateDialog</name>
    <message>
        <source> Updates Notification</source>
        <translation> - 업데이트 알림</translation>
    </message>
    <message>
        <source>Check for updates on start</source>
        <translation>시작할 때 업데이트 확인</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>예</translation>
    </message>
    <message>
        <source>No</source>
        <translation>아니요</translation>
    </message>
</context>
<context>
    <name>QMMultiMedia::MediaSearchDialog</name>
    <message>
        <source>&amp;Cancel</source>
        <translation>취소(&amp;C)</translation>
    </message>
    <message>
        <source>&lt;CENTER&gt;&lt;H2&gt;Searching for the media files.&lt;br&gt;Please, wait...&lt;/H2&gt;&lt;/CENTER&gt;</source>
        <translation>&lt;CENTER&gt;&lt;H2&gt;미디어 파일을 찾는 중입니다.&lt;br&gt;잠시 기다려 주십시오…&lt;/H2&gt;&lt;/CENTER&gt;</translation>
    </message>
    <message>
        <source>&lt;H3&gt;Video Files: %1&lt;BR&gt;Audio Files: %2&lt;BR&gt;Image Files: %3&lt;BR&gt;Text Files: %4&lt;BR&gt;Other Files: %5&lt;BR&gt;&lt;/H3&gt;</source>
        <translation>&lt;H3&gt;비디오 파일: %1&lt;BR&gt;오디오 파일: %2&lt;BR&gt;이미지 파일: %3&lt;BR&gt;텍스트 파일: %4&lt;BR&gt;기타 파일: %5&lt;BR&gt;&lt;/H3&gt;</translation>
    </message>
</context>
<context>
    <name>QMWidgets::AboutDialog</name>
    <message>
        <source> Info</source>
        <translation> - 정보</translation>
    </message>
    <message>
        <source>About the program</source>
        <translation>프로그램 정보</translation>
    </message>
    <message>
        <source>Legal notices</source>
        <translation>법적 고지</translation>
    </message>
    <message>
        <source>&amp;Ok</source>
        <translation>확인(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Legal Notices</source>
        <translation>법적 고지(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>뒤로(&amp;B)</translation>
    </message>
</context>
<context>
    <name>QMWidgets::App</name>
    <message>
        <source>&lt;H3&gt;This Application Uses:&lt;/H3&gt;</source>
        <translation>&lt;H3&gt;이 애플리케이션에 사용된 구성 요소:&lt;/H3&gt;</translation>
    </message>
    <message>
        <source>About</source>
        <translation>정보</translation>
    </message>
    <message>
        <source>&lt;CENTER&gt;&lt;H2&gt;The newer version </source>
        <translation>&lt;CENTER&gt;&lt;H2&gt;새로운 </translation>
    </message>
    <message>
        <source> of </source>
        <translation> 버전의 </translation>
    </message>
    <message>
        <source> is available.&lt;br&gt;Get the newest version?&lt;/H2&gt;&lt;/CENTER&gt;</source>
        <translation> 앱이 나왔습니다.&lt;br&gt;최신 버전을 받으시겠습니까?&lt;/H2&gt;&lt;/CENTER&gt;</translation>
    </message>
    <message>
        <source>&lt;CENTER&gt;&lt;H2&gt;You are using the latest version available.&lt;br&gt;Go to the app web page anyway?&lt;/H2&gt;&lt;/CENTER&gt;</source>
        <translation>&lt;CENTER&gt;&lt;H2&gt;최신 버전을 사용하고 있습니다.&lt;br&gt;그래도 앱 웹 페이지로 이동하시겠습니까?&lt;/H2&gt;&lt;/CENTER&gt;</translation>
    </message>
</context>
<context>
    <name>QMWidgets::AppCatalog</name>
    <message>
        <source>Calderin WAV - turns audio and video files into WAV files</source>
        <translation>Calderin WAV - 오디오와 비디오를 WAV 파일로 변환</translation>
    </message>
    <message>
        <source>Calderin M4A - turns audio and video files into M4A files</source>
        <translation>Calderin M4A - 오디오와 비디오를 M4A 파일로 변환</translation>
    </message>
    <message>
        <source>Calderin MP3 - turns audio and video files into MP3 files</source>
        <translation>Calderin MP3 - 오디오와 비디오를 MP3 파일로 변환</translation>
    </message>
    <message>
        <source>Calderin Recorder - records any input of the computer</source>
        <translation>Calderin Recorder - 컴퓨터의 모든 입력을 녹음</translation>
    </message>
    <message>
        <source>Calderin Timecode - reads LTC timecode from audio and video</source>
        <translation>Calderin Timecode - 오디오와 비디오에서 LTC 타임코드 읽기</translation>
    </message>
    <message>
        <source>Calderin MIDI - shows, plays and edits MIDI files</source>
        <translation>Calderin MIDI - MIDI 파일 보기, 재생, 편집</translation>
    </message>
    <message>
        <source>Calderin Metronome - keeps the beat in any time signature</source>
        <translation>Calderin Metronome - 어떤 박자에도 정확한 메트로놈</translation>
    </message>
    <message>
        <source>Calderin Guitar - tuner, chords and scales for the guitar</source>
        <translation>Calderin Guitar - 기타용 튜너, 코드, 스케일</translation>
    </message>
    <message>
        <source>Calderin Bass - tuner and scales for the bass guitar</source>
        <translation>Calderin Bass - 베이스 기타용 튜너와 스케일</translation>
    </message>
    <message>
        <source>Calderin Ukulele - tuner and chords for the ukulele</source>
        <translation>Calderin Ukulele - 우쿨렐레용 튜너와 코드</translation>
    </message>
    <message>
        <source>Calderin Mandolin - tuner and chords for the mandolin</source>
        <translation>Calderin Mandolin - 만돌린용 튜너와 코드</translation>
    </message>
    <message>
        <source>Calderin Banjo - tuner and chords for the banjo</source>
        <translation>Calderin Banjo - 밴조용 튜너와 코드</translation>
    </message>
    <message>
        <source>Calderin Balalaika - tuner and chords for the balalaika</source>
        <translation>Calderin Balalaika - 발랄라이카용 튜너와 코드</translation>
    </message>
    <message>
        <source>Calderin Piano - chords and scales on the keyboard</source>
        <translation>Calderin Piano - 건반으로 보는 코드와 스케일</translation>
    </message>
    <message>
        <source>Calderin Violin - tuner and fingering for the violin</source>
        <translation>Calderin Violin - 바이올린용 튜너와 운지법</translation>
    </message>
    <message>
        <source>Calderin Viewer - leafs through folders of pictures</source>
        <translation>Calderin Viewer - 폴더의 그림 넘겨 보기</translation>
    </message>
    <message>
        <source>Calderin Notes - puts notes and arrows on pictures</source>
        <translation>Calderin Notes - 그림에 메모와 화살표 넣기</translation>
    </message>
    <message>
        <source>Calderin Cropper - cuts pictures out of the screen</source>
        <translation>Calderin Cropper - 화면에서 그림 잘라 내기</translation>
    </message>
    <message>
        <source>Calderin Measurer - measures sizes and distances on the screen</source>
        <translation>Calderin Measurer - 화면에서 크기와 거리 재기</translation>
    </message>
    <message>
        <source>Calderin Palette - reduces and tunes the colours of pictures</source>
        <translation>Calderin Palette - 그림의 색상 줄이기와 조정</translation>
    </message>
    <message>
        <source>Calderin Animation - makes animations of pictures</source>
        <translation>Calderin Animation - 그림으로 애니메이션 만들기</translation>
    </message>
    <message>
        <source>Calderin FTP - moves files to servers and back</source>
        <translation>Calderin FTP - 서버와 파일 주고받기</translation>
    </message>
    <message>
        <source>Calderin Contacts - reads and writes contact cards</source>
        <translation>Calderin Contacts - 연락처 카드 읽기와 쓰기</translation>
    </message>
    <message>
        <source>Calderin Cipher - locks files with a password</source>
        <translation>Calderin Cipher - 암호로 파일 잠그기</translation>
    </message>
    <message>
        <source>Calderin Style - writes style sheets and tries them out</source>
        <translation>Calderin Style - 스타일시트 작성과 시험</translation>
    </message>
    <message>
        <source>Calderin Minimizer - makes scripts for the web smaller</source>
        <translation>Calderin Minimizer - 웹 스크립트 크기 줄이기</translation>
    </message>
</context>
<context>
    <name>QMWidgets::AppMenu</name>
    <message>
        <source>Rate this App</source>
        <translation>이 앱 평가</translation>
    </message>
    <message>
        <source>Intro</source>
        <translation>소개</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>공유</translation>
    </message>
    <message>
        <source>Join Us</source>
        <translation>팔로우하기</translation>
    </message>
    <message>
        <source>More Apps</source>
        <translation>다른 앱</translation>
    </message>
    <message>
        <source>Contact Us</source>
        <translation>문의하기</translation>
    </message>
    <message>
        <source>Support Page</source>
        <translation>지원 페이지</translation>
    </message>
    <message>
        <source>Check Updates</source>
        <translation>업데이트 확인</translation>
    </message>
    <message>
        <source>Privacy Policy</source>
        <translation>개인정보 처리방침</translation>
    </message>
    <message>
        <source>About</source>
        <translation>정보</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>종료</translation>
    </message>
</context>
<context>
    <name>QMWidgets::CssDoc</name>
    <message>
        <source>Style sheet</source>
        <translation>스타일시트</translation>
    </message>
</context>
<context>
    <name>QMWidgets::CssEditor</name>
    <message>
        <source>CSS Style Editor</source>
        <translation>CSS 스타일 편집기</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>준비됨</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>파일(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>도움말(&amp;H)</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>작업</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>열기(&amp;O)...</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>저장(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;SetInfo</source>
        <translation>정보 설정(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>적용(&amp;P)</translation>
    </message>
    <message>
        <source>S&amp;ave As...</source>
        <translation>다른 이름으로 저장(&amp;A)...</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>정보(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>초기화(&amp;R)</translation>
    </message>
    <message>
        <source>About</source>
        <translation>정보</translation>
    </message>
</context>
<context>
    <name>QMWidgets::DropWidget</name>
    <message>
        <source>&lt;H1&gt;Drop the photos here&lt;/H1&gt;</source>
        <translation>&lt;H1&gt;여기에 사진을 놓으세요&lt;/H1&gt;</translation>
    </message>
    <message>
        <source>Click to open the photos</source>
        <translation>클릭하여 사진 열기</translation>
    </message>
    <message>
        <source>Open files</source>
        <translation>파일 열기</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>폴더 열기</translation>
    </message>
</context>
<context>
    <name>QMWidgets::HelpDialog</name>
    <message>
        <source>&amp;Close</source>
        <translation>닫기(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Always skip intro</source>
        <translation>소개 항상 건너뛰기(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Watch videos</source>
        <translation>동영상 보기(&amp;W)</translation>
    </message>
    <message>
        <source> Introduction</source>
        <translation> - 소개</translation>
    </message>
</context>
<context>
    <name>QMWidgets::HelpViewArea</name>
    <message>
        <source>Slide %1</source>
        <translation>슬라이드 %1</translation>
    </message>
</context>
<context>
    <name>QMWidgets::JoinDialog</name>
    <message>
        <source>Join us</source>
        <translation>팔로우하기</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>닫기(&amp;C)</translation>
    </message>
</context>
<context>
    <name>QMWidgets::JoinReminderDialog</name>
    <message>
        <source>Join Us</source>
        <translation>팔로우하기</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>닫기(&amp;C)</translation>
    </message>
</context>
<context>
    <name>QMWidgets::JoinWidget</name>
    <message>
        <source>Follow us and stay informed&lt;br&gt;about our</source>
        <translation>팔로우하고&lt;br&gt;새 소식을 받아 보세요</translation>
    </message>
    <message>
        <source>1. Important News</source>
        <translation>1. 중요한 소식</translation>
    </message>
    <message>
        <source>2. New APPs</source>
        <translation>2. 새로운 앱</translation>
    </message>
    <message>
        <source>3. APP Updates</source>
        <translation>3. 앱 업데이트</translation>
    </message>
    <message>
        <source>and more...</source>
        <translation>그 밖의 소식...</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>이메일</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>정보</translation>
    </message>
    <message>
        <source>&lt;H3&gt;To join us, please &quot;Like&quot; %1 on Facebook.&lt;/H3&gt;Thank you!</source>
        <translation>&lt;H3&gt;팔로우하려면 Facebook의 %1 페이지에서 &quot;좋아요&quot;를 눌러 주세요.&lt;/H3&gt;감사합니다!</translation>
    </message>
</context>
<context>
    <name>QMWidgets::MMessageBox</name>
    <message>
        <source>Ok</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>No</source>
        <translation>아니요</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>예</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>중단</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>다시 시도</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>무시</translation>
    </message>
    <message>
        <source>YesAll</source>
        <translation>모두 예</translation>
    </message>
    <message>
        <source>NoAll</source>
        <translation>모두 아니요</translation>
    </message>
</context>
<context>
    <name>QMWidgets::MoreAppsButton</name>
    <message>
        <source>More</source>
        <translation>더 보기</translation>
    </message>
</context>
<context>
    <name>QMWidgets::PromoAdsBar</name>
    <message>
        <source>Close the banner</source>
        <translation>배너 닫기</translation>
    </message>
</context>
<context>
    <name>QMWidgets::PromoMenuBar</name>
    <message>
        <source>More</source>
        <translation>더 보기</translation>
    </message>
    <message>
        <source>Introduction</source>
        <translation>소개</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>공유</translation>
    </message>
    <message>
        <source>Join Us</source>
        <translation>팔로우하기</translation>
    </message>
    <message>
        <source>More Apps</source>
        <translation>다른 앱</translation>
    </message>
    <message>
        <source>Rate App</source>
        <translation>앱 평가</translation>
    </message>
    <message>
        <source>App Menu</source>
        <translation>앱 메뉴</translation>
    </message>
</context>
<context>
    <name>QMWidgets::RateAppStoreDialog</name>
    <message>
        <source>Rate &quot;%1&quot;</source>
        <translation>&quot;%1&quot; 평가</translation>
    </message>
    <message>
        <source>Enjoying &quot;%1&quot; ?</source>
        <translation>&quot;%1&quot; 앱이 마음에 드시나요?</translation>
    </message>
    <message>
        <source>Please rate the app on the App Store.&lt;br&gt;This will help us improve &lt;br&gt;the app&apos;s features in the future.</source>
        <translation>App Store에서 앱을 평가해 주세요.&lt;br&gt;앞으로 앱의 기능을&lt;br&gt;개선하는 데 도움이 됩니다.</translation>
    </message>
    <message>
        <source>&amp;Rate It Now</source>
        <translation>지금 평가(&amp;R)</translation>
    </message>
</context>
<context>
    <name>QMWidgets::RateMailDialog</name>
    <message>
        <source>Feedback about &quot;%1&quot;</source>
        <translation>&quot;%1&quot;에 대한 의견</translation>
    </message>
    <message>
        <source>Please rate it on the app store or send us a quick e-mail&lt;br&gt;and tell us what you didn&apos;t enjoy. &lt;br&gt;Your feedback will help us improve this app.</source>
        <translation>App Store에서 앱을 평가하시거나&lt;br&gt;마음에 들지 않은 점을 이메일로 알려 주세요.&lt;br&gt;보내 주신 의견은 앱을 개선하는 데 도움이 됩니다.</translation>
    </message>
    <message>
        <source>&amp;Rate</source>
        <translation>평가(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Write email</source>
        <translation>이메일 쓰기(&amp;W)</translation>
    </message>
</context>
<context>
    <name>QMWidgets::ReminderDialog</name>
    <message>
        <source>&amp;Rate</source>
        <translation>평가(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Mail</source>
        <translation>메일(&amp;M)</translation>
    </message>
</context>
<context>
    <name>QMWidgets::ReminderStateDialog</name>
    <message>
        <source>&amp;Later</source>
        <translation>나중에(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Don&apos;t ask me again</source>
        <translation>다시 묻지 않기(&amp;D)</translation>
    </message>
</context>
<context>
    <name>QMWidgets::RoundProgress</name>
    <message>
        <source>Overall progress</source>
        <translation>전체 진행률</translation>
    </message>
</context>
<context>
    <name>QMWidgets::TellDialog</name>
    <message>
        <source>Share %1</source>
        <translation>%1 공유</translation>
    </message>
    <message>
        <source>If you like the app&lt;br&gt;please share it with&lt;br&gt;your friends.&lt;br&gt;Thanks!</source>
        <translation>앱이 마음에 드시면&lt;br&gt;친구들과&lt;br&gt;공유해 주세요.&lt;br&gt;감사합니다!</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>닫기(&amp;C)</translation>
    </message>
</context>
<context>
    <name>QMWidgets::TellReminderDialog</name>
    <message>
        <source>Share</source>
        <translation>공유</translation>
    </message>
    <message>
        <source>If you like the app %1,&lt;br&gt;Share it with Your Friends.&lt;br&gt;Thanks!</source>
        <translation>%1 앱이 마음에 드시면&lt;br&gt;친구들과 공유해 주세요.&lt;br&gt;감사합니다!</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>닫기(&amp;C)</translation>
    </message>
</context>
<context>
    <name>QMWidgets::TellWidget</name>
    <message>
        <source>E-mail</source>
        <translation>이메일</translation>
    </message>
</context>
</TS>
