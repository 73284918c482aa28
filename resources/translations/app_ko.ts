<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko">
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
        <translation> - 설정</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>1 (Mono)</source>
        <translation>1(모노)</translation>
    </message>
    <message>
        <source>2 (Stereo)</source>
        <translation>2(스테레오)</translation>
    </message>
    <message>
        <source>High</source>
        <translation>높음</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>보통</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>낮음</translation>
    </message>
    <message>
        <source>BitRate</source>
        <translation>비트 전송률</translation>
    </message>
    <message>
        <source>Bits per Sample:</source>
        <translation>샘플당 비트:</translation>
    </message>
    <message>
        <source>Channels:</source>
        <translation>채널:</translation>
    </message>
    <message>
        <source>Quality:</source>
        <translation>음질:</translation>
    </message>
    <message>
        <source>Copy meta tags (id3) from source</source>
        <translation>원본의 메타 태그(ID3) 복사</translation>
    </message>
    <message>
        <source>Copy image files from source</source>
        <translation>원본의 이미지 파일 복사</translation>
    </message>
    <message>
        <source>Copy text files from source</source>
        <translation>원본의 텍스트 파일 복사</translation>
    </message>
    <message>
        <source>Copy entire non-converted content from source</source>
        <translation>원본의 변환되지 않는 항목 모두 복사</translation>
    </message>
    <message>
        <source>Preserve folder structure of the source</source>
        <translation>원본의 폴더 구조 유지</translation>
    </message>
    <message>
        <source>Trim silence from start and end</source>
        <translation>시작과 끝의 무음 제거</translation>
    </message>
    <message>
        <source>Play sound</source>
        <translation>소리로 알리기</translation>
    </message>
    <message>
        <source>Open the destination folder</source>
        <translation>대상 폴더 열기</translation>
    </message>
    <message>
        <source>Clear the list</source>
        <translation>목록 비우기</translation>
    </message>
    <message>
        <source>General</source>
        <translation>일반</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>작업</translation>
    </message>
    <message>
        <source>Opens the destination folder in finder</source>
        <translation>파일 관리자에서 대상 폴더를 엽니다</translation>
    </message>
    <message>
        <source>Sample Rate:</source>
        <translation>샘플레이트:</translation>
    </message>
    <message>
        <source>Source / Destination Settings</source>
        <translation>원본 및 대상 설정</translation>
    </message>
    <message>
        <source>After Conversion</source>
        <translation>변환 후</translation>
    </message>
    <message>
        <source>WAV Settings</source>
        <translation>WAV 설정</translation>
    </message>
    <message>
        <source>M4A Settings</source>
        <translation>M4A 설정</translation>
    </message>
    <message>
        <source>MP3 Settings</source>
        <translation>MP3 설정</translation>
    </message>
    <message>
        <source>Unknown Settings</source>
        <translation>알 수 없는 설정</translation>
    </message>
    <message>
        <source>Volume level normalization (in %)</source>
        <translation>음량 정규화(%)</translation>
    </message>
    <message>
        <source>Level in percent</source>
        <translation>레벨(%)</translation>
    </message>
    <message>
        <source>Fade In &amp;&amp; Out (in seconds)</source>
        <extracomment>The ampersand is doubled to be shown.</extracomment>
        <translation>페이드 인/아웃(초)</translation>
    </message>
</context>
<context>
    <name>BatchDialog</name>
    <message>
        <source> Batch Process</source>
        <extracomment>Follows the name of the application in the title of the window; keep the leading blank.</extracomment>
        <translation> - 일괄 처리</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>일시 정지</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>중지</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>One or more errors have occured!</source>
        <translation>오류가 발생했습니다!</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>계속</translation>
    </message>
    <message>
        <source>ANALYZING</source>
        <translation>분석 중</translation>
    </message>
    <message>
        <source>DONE</source>
        <translation>완료</translation>
    </message>
    <message>
        <source>NOT ENOUGH FREE SPACE</source>
        <translation>여유 공간 부족</translation>
    </message>
    <message>
        <source>Not enough free space</source>
        <translation>여유 공간 부족</translation>
    </message>
    <message>
        <source>&lt;H3&gt;Not enough free space&lt;/H3&gt;Conversion paused.&lt;br&gt;Free up space and click &quot;Resume&quot;.&lt;br&gt;To stop conversion, click &quot;Stop&quot;.</source>
        <translation>&lt;H3&gt;여유 공간 부족&lt;/H3&gt;변환이 일시 정지되었습니다.&lt;br&gt;공간을 확보한 다음 “계속”을 클릭하십시오.&lt;br&gt;변환을 끝내려면 “중지”를 클릭하십시오.</translation>
    </message>
</context>
<context>
    <name>BatchWorker</name>
    <message>
        <source>COPYING IMAGE FILES</source>
        <translation>이미지 파일 복사 중</translation>
    </message>
    <message>
        <source>COPYING TEXT FILES</source>
        <translation>텍스트 파일 복사 중</translation>
    </message>
    <message>
        <source>COPYING NON-CONVERTED CONTENT</source>
        <translation>변환되지 않는 항목 복사 중</translation>
    </message>
    <message>
        <source>ANALYZING</source>
        <translation>분석 중</translation>
    </message>
    <message>
        <source>Can not convert, because the duration is to long. Please reduce the conversion sample rate and try again: </source>
        <translation>길이가 너무 길어 변환할 수 없습니다. 샘플레이트를 낮춘 후 다시 시도하세요: </translation>
    </message>
    <message>
        <source>Can not convert: </source>
        <translation>변환할 수 없습니다: </translation>
    </message>
</context>
<context>
    <name>DecoratedDial</name>
    <message>
        <source>min         max</source>
        <extracomment>Below the two ends of the dial; keep the distance between the words.</extracomment>
        <translation>최소         최대</translation>
    </message>
</context>
<context>
    <name>ErrorsDialog</name>
    <message>
        <source>ERRORS LOG</source>
        <translation>오류 로그</translation>
    </message>
    <message>
        <source>Errors of the conversion</source>
        <translation>변환 오류</translation>
    </message>
    <message>
        <source>&amp;Ok</source>
        <translation>확인(&amp;O)</translation>
    </message>
</context>
<context>
    <name>FadeWidget</name>
    <message>
        <source>Length of the fade-in</source>
        <translation>페이드 인 길이</translation>
    </message>
    <message>
        <source>Length of the fade-out</source>
        <translation>페이드 아웃 길이</translation>
    </message>
    <message>
        <source>Longer fade-in</source>
        <translation>페이드 인 늘리기</translation>
    </message>
    <message>
        <source>Longer fade-out</source>
        <translation>페이드 아웃 늘리기</translation>
    </message>
    <message>
        <source>Shorter fade-in</source>
        <translation>페이드 인 줄이기</translation>
    </message>
    <message>
        <source>Shorter fade-out</source>
        <translation>페이드 아웃 줄이기</translation>
    </message>
</context>
<context>
    <name>GeneralOutput</name>
    <message>
        <source>Settings error, can not create: </source>
        <translation>설정 오류로 만들 수 없습니다: </translation>
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
        <translation>클릭하여 오디오/비디오 폴더 열기</translation>
    </message>
    <message>
        <source>&lt;H2&gt;&lt;center&gt;Drop the audio/video files&lt;br&gt;and folders here&lt;br&gt;&lt;bold&gt;+&lt;/bold&gt;&lt;/center&gt;&lt;/H2&gt;</source>
        <translation>&lt;H2&gt;&lt;center&gt;오디오/비디오 파일과 폴더를&lt;br&gt;여기에 놓으세요&lt;br&gt;&lt;bold&gt;+&lt;/bold&gt;&lt;/center&gt;&lt;/H2&gt;</translation>
    </message>
    <message>
        <source>Change destination folder...</source>
        <translation>대상 폴더 변경...</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>초기화</translation>
    </message>
    <message>
        <source>Destination folder</source>
        <translation>대상 폴더</translation>
    </message>
    <message>
        <source>Opens the destination folder in finder</source>
        <translation>파일 관리자에서 대상 폴더를 엽니다</translation>
    </message>
    <message>
        <source>Open the destination folder</source>
        <translation>대상 폴더 열기</translation>
    </message>
    <message>
        <source>Destination:</source>
        <translation>대상:</translation>
    </message>
    <message>
        <source>Tracks</source>
        <translation>트랙</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>변환</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>Set destination folder</source>
        <translation>대상 폴더 설정</translation>
    </message>
    <message>
        <source>Files with unreadable names were left out: %1</source>
        <translation>이름을 읽을 수 없는 파일을 제외했습니다: %1</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>오류</translation>
    </message>
    <message>
        <source>Can not access the destination folder.
Please verify the destination.</source>
        <translation>대상 폴더에 접근할 수 없습니다.
대상을 확인하세요.</translation>
    </message>
    <message>
        <source>WAITING FOR THE PREVIOUS CONVERSION</source>
        <translation>이전 변환이 끝나기를 기다리는 중</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>재생 위치</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>중지</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>재생</translation>
    </message>
    <message>
        <source>Remove from list</source>
        <translation>목록에서 제거</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>재생 또는 일시 정지</translation>
    </message>
    <message>
        <source>%1 media file</source>
        <translation>미디어 파일 %1개</translation>
    </message>
    <message>
        <source>%1 media files</source>
        <translation>미디어 파일 %1개</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Finishing the tags of the converted files…</source>
        <translation>변환된 파일의 태그를 마무리하는 중…</translation>
    </message>
</context>
</TS>
