<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru">
<context>
    <name>AppUpdateDialog</name>
    <message>
        <source> Updates Notification</source>
        <translation> — обновление</translation>
    </message>
    <message>
        <source>Check for updates on start</source>
        <translation>Проверять обновления при запуске</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Да</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Нет</translation>
    </message>
</context>
<context>
    <name>QMMultiMedia::MediaSearchDialog</name>
    <message>
        <source>&amp;Cancel</source>
        <translation>О&amp;тмена</translation>
    </message>
    <message>
        <source>&lt;CENTER&gt;&lt;H2&gt;Searching for the media files.&lt;br&gt;Please, wait...&lt;/H2&gt;&lt;/CENTER&gt;</source>
        <translation>&lt;CENTER&gt;&lt;H2&gt;Поиск медиафайлов.&lt;br&gt;Пожалуйста, подождите…&lt;/H2&gt;&lt;/CENTER&gt;</translation>
    </message>
    <message>
        <source>&lt;H3&gt;Video Files: %1&lt;BR&gt;Audio Files: %2&lt;BR&gt;Image Files: %3&lt;BR&gt;Text Files: %4&lt;BR&gt;Other Files: %5&lt;BR&gt;&lt;/H3&gt;</source>
        <translation>&lt;H3&gt;Видеофайлы: %1&lt;BR&gt;Аудиофайлы: %2&lt;BR&gt;Изображения: %3&lt;BR&gt;Текстовые файлы: %4&lt;BR&gt;Другие файлы: %5&lt;BR&gt;&lt;/H3&gt;</translation>
    </message>
</context>
<context>
    <name>QMWidgets::AboutDialog</name>
    <message>
        <source> Info</source>
        <translation> — о программе</translation>
    </message>
    <message>
        <source>About the program</source>
        <translation>О программе</translation>
    </message>
    <message>
        <source>Legal notices</source>
        <translation>Правовая информация</translation>
    </message>
    <message>
        <source>&amp;Ok</source>
        <translation>&amp;ОК</translation>
    </message>
    <message>
        <source>&amp;Legal Notices</source>
        <translation>&amp;Правовая информация</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Назад</translation>
    </message>
</context>
<context>
    <name>QMWidgets::App</name>
    <message>
        <source>&lt;H3&gt;This Application Uses:&lt;/H3&gt;</source>
        <translation>&lt;H3&gt;В программе используются:&lt;/H3&gt;</translation>
    </message>
    <message>
        <source>About</source>
        <translation>О программе</translation>
    </message>
    <message>
        <source>&lt;CENTER&gt;&lt;H2&gt;The newer version </source>
        <translation>&lt;CENTER&gt;&lt;H2&gt;Доступна новая версия </translation>
    </message>
    <message>
        <source> of </source>
        <translation> программы </translation>
    </message>
    <message>
        <source> is available.&lt;br&gt;Get the newest version?&lt;/H2&gt;&lt;/CENTER&gt;</source>
        <translation>.&lt;br&gt;Получить новую версию?&lt;/H2&gt;&lt;/CENTER&gt;</translation>
    </message>
    <message>
        <source>&lt;CENTER&gt;&lt;H2&gt;You are using the latest version available.&lt;br&gt;Go to the app web page anyway?&lt;/H2&gt;&lt;/CENTER&gt;</source>
        <translation>&lt;CENTER&gt;&lt;H2&gt;У вас установлена последняя версия.&lt;br&gt;Всё равно перейти на страницу программы?&lt;/H2&gt;&lt;/CENTER&gt;</translation>
    </message>
</context>
<context>
    <name>QMWidgets::AppCatalog</name>
    <message>
        <source>Calderin WAV - turns audio and video files into WAV files</source>
        <translation>Calderin WAV — преобразует аудио и видео в файлы WAV</translation>
    </message>
    <message>
        <source>Calderin M4A - turns audio and video files into M4A files</source>
        <translation>Calderin M4A — преобразует аудио и видео в файлы M4A</translation>
    </message>
    <message>
        <source>Calderin MP3 - turns audio and video files into MP3 files</source>
        <translation>Calderin MP3 — преобразует аудио и видео в файлы MP3</translation>
    </message>
    <message>
        <source>Calderin Recorder - records any input of the computer</source>
        <translation>Calderin Recorder — записывает звук с любого входа компьютера</translation>
    </message>
    <message>
        <source>Calderin Timecode - reads LTC timecode from audio and video</source>
        <translation>Calderin Timecode — читает тайм-код LTC из аудио и видео</translation>
    </message>
    <message>
        <source>Calderin MIDI - shows, plays and edits MIDI files</source>
        <translation>Calderin MIDI — показывает, играет и редактирует файлы MIDI</translation>
    </message>
    <message>
        <source>Calderin Metronome - keeps the beat in any time signature</source>
        <translation>Calderin Metronome — держит ритм в любом размере</translation>
    </message>
    <message>
        <source>Calderin Guitar - tuner, chords and scales for the guitar</source>
        <translation>Calderin Guitar — тюнер, аккорды и гаммы для гитары</translation>
    </message>
    <message>
        <source>Calderin Bass - tuner and scales for the bass guitar</source>
        <translation>Calderin Bass — тюнер и гаммы для бас-гитары</translation>
    </message>
    <message>
        <source>Calderin Ukulele - tuner and chords for the ukulele</source>
        <translation>Calderin Ukulele — тюнер и аккорды для укулеле</translation>
    </message>
    <message>
        <source>Calderin Mandolin - tuner and chords for the mandolin</source>
        <translation>Calderin Mandolin — тюнер и аккорды для мандолины</translation>
    </message>
    <message>
        <source>Calderin Banjo - tuner and chords for the banjo</source>
        <translation>Calderin Banjo — тюнер и аккорды для банджо</translation>
    </message>
    <message>
        <source>Calderin Balalaika - tuner and chords for the balalaika</source>
        <translation>Calderin Balalaika — тюнер и аккорды для балалайки</translation>
    </message>
    <message>
        <source>Calderin Piano - chords and scales on the keyboard</source>
        <translation>Calderin Piano — аккорды и гаммы на клавиатуре</translation>
    </message>
    <message>
        <source>Calderin Violin - tuner and fingering for the violin</source>
        <translation>Calderin Violin — тюнер и аппликатура для скрипки</translation>
    </message>
    <message>
        <source>Calderin Viewer - leafs through folders of pictures</source>
        <translation>Calderin Viewer — просматривает папки с изображениями</translation>
    </message>
    <message>
        <source>Calderin Notes - puts notes and arrows on pictures</source>
        <translation>Calderin Notes — добавляет на изображения заметки и стрелки</translation>
    </message>
    <message>
        <source>Calderin Cropper - cuts pictures out of the screen</source>
        <translation>Calderin Cropper — вырезает изображения с экрана</translation>
    </message>
    <message>
        <source>Calderin Measurer - measures sizes and distances on the screen</source>
        <translation>Calderin Measurer — измеряет размеры и расстояния на экране</translation>
    </message>
    <message>
        <source>Calderin Palette - reduces and tunes the colours of pictures</source>
        <translation>Calderin Palette — сокращает и настраивает цвета изображений</translation>
    </message>
    <message>
        <source>Calderin Animation - makes animations of pictures</source>
        <translation>Calderin Animation — создаёт анимацию из изображений</translation>
    </message>
    <message>
        <source>Calderin FTP - moves files to servers and back</source>
        <translation>Calderin FTP — передаёт файлы на серверы и обратно</translation>
    </message>
    <message>
        <source>Calderin Contacts - reads and writes contact cards</source>
        <translation>Calderin Contacts — читает и записывает визитные карточки</translation>
    </message>
    <message>
        <source>Calderin Cipher - locks files with a password</source>
        <translation>Calderin Cipher — защищает файлы паролем</translation>
    </message>
    <message>
        <source>Calderin Style - writes style sheets and tries them out</source>
        <translation>Calderin Style — создаёт и проверяет таблицы стилей</translation>
    </message>
    <message>
        <source>Calderin Minimizer - makes scripts for the web smaller</source>
        <translation>Calderin Minimizer — уменьшает скрипты для веба</translation>
    </message>
</context>
<context>
    <name>QMWidgets::AppMenu</name>
    <message>
        <source>Rate this App</source>
        <translation>Оценить программу</translation>
    </message>
    <message>
        <source>Intro</source>
        <translation>Введение</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Поделиться</translation>
    </message>
    <message>
        <source>Join Us</source>
        <translation>Присоединиться</translation>
    </message>
    <message>
        <source>More Apps</source>
        <translation>Другие программы</translation>
    </message>
    <message>
        <source>Contact Us</source>
        <translation>Связаться с нами</translation>
    </message>
    <message>
        <source>Support Page</source>
        <translation>Страница поддержки</translation>
    </message>
    <message>
        <source>Check Updates</source>
        <translation>Проверить обновления</translation>
    </message>
    <message>
        <source>Privacy Policy</source>
        <translation>Конфиденциальность</translation>
    </message>
    <message>
        <source>About</source>
        <translation>О программе</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Выход</translation>
    </message>
</context>
<context>
    <name>QMWidgets::CssDoc</name>
    <message>
        <source>Style sheet</source>
        <translation>Таблица стилей</translation>
    </message>
</context>
<context>
    <name>QMWidgets::CssEditor</name>
    <message>
        <source>CSS Style Editor</source>
        <translation>Редактор стилей CSS</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Файл</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Справка</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>Обработка</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Открыть…</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Сохранить</translation>
    </message>
    <message>
        <source>&amp;SetInfo</source>
        <translation>&amp;Задать сведения</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Применить</translation>
    </message>
    <message>
        <source>S&amp;ave As...</source>
        <translation>Сохранить &amp;как…</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>О п&amp;рограмме</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>С&amp;бросить</translation>
    </message>
    <message>
        <source>About</source>
        <translation>О программе</translation>
    </message>
</context>
<context>
    <name>QMWidgets::DropWidget</name>
    <message>
        <source>&lt;H1&gt;Drop the photos here&lt;/H1&gt;</source>
        <translation>&lt;H1&gt;Перетащите фотографии сюда&lt;/H1&gt;</translation>
    </message>
    <message>
        <source>Click to open the photos</source>
        <translation>Нажмите, чтобы открыть фотографии</translation>
    </message>
    <message>
        <source>Open files</source>
        <translation>Открыть файлы</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Открыть папку</translation>
    </message>
</context>
<context>
    <name>QMWidgets::HelpDialog</name>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Закрыть</translation>
    </message>
    <message>
        <source>&amp;Always skip intro</source>
        <translation>&amp;Больше не показывать</translation>
    </message>
    <message>
        <source>&amp;Watch videos</source>
        <translation>&amp;Смотреть видео</translation>
    </message>
    <message>
        <source> Introduction</source>
        <translation> — введение</translation>
    </message>
</context>
<context>
    <name>QMWidgets::HelpViewArea</name>
    <message>
        <source>Slide %1</source>
        <translation>Слайд %1</translation>
    </message>
</context>
<context>
    <name>QMWidgets::JoinDialog</name>
    <message>
        <source>Join us</source>
        <translation>Присоединяйтесь</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Закрыть</translation>
    </message>
</context>
<context>
    <name>QMWidgets::JoinReminderDialog</name>
    <message>
        <source>Join Us</source>
        <translation>Присоединиться</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Закрыть</translation>
    </message>
</context>
<context>
    <name>QMWidgets::JoinWidget</name>
    <message>
        <source>Follow us and stay informed&lt;br&gt;about our</source>
        <translation>Подпишитесь, чтобы узнавать&lt;br&gt;о наших</translation>
    </message>
    <message>
        <source>1. Important News</source>
        <translation>1. Важных новостях</translation>
    </message>
    <message>
        <source>2. New APPs</source>
        <translation>2. Новых программах</translation>
    </message>
    <message>
        <source>3. APP Updates</source>
        <translation>3. Обновлениях программ</translation>
    </message>
    <message>
        <source>and more...</source>
        <translation>и не только…</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>Эл. почта</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Информация</translation>
    </message>
    <message>
        <source>&lt;H3&gt;To join us, please &quot;Like&quot; %1 on Facebook.&lt;/H3&gt;Thank you!</source>
        <translation>&lt;H3&gt;Чтобы присоединиться, поставьте «Нравится» странице %1 в Facebook.&lt;/H3&gt;Спасибо!</translation>
    </message>
</context>
<context>
    <name>QMWidgets::MMessageBox</name>
    <message>
        <source>Ok</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Да</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Прервать</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Повторить</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Пропустить</translation>
    </message>
    <message>
        <source>YesAll</source>
        <translation>Да для всех</translation>
    </message>
    <message>
        <source>NoAll</source>
        <translation>Нет для всех</translation>
    </message>
</context>
<context>
    <name>QMWidgets::MoreAppsButton</name>
    <message>
        <source>More</source>
        <translation>Ещё</translation>
    </message>
</context>
<context>
    <name>QMWidgets::PromoAdsBar</name>
    <message>
        <source>Close the banner</source>
        <translation>Закрыть баннер</translation>
    </message>
</context>
<context>
    <name>QMWidgets::PromoMenuBar</name>
    <message>
        <source>More</source>
        <translation>Ещё</translation>
    </message>
    <message>
        <source>Introduction</source>
        <translation>Введение</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Поделиться</translation>
    </message>
    <message>
        <source>Join Us</source>
        <translation>Присоединиться</translation>
    </message>
    <message>
        <source>More Apps</source>
        <translation>Другие программы</translation>
    </message>
    <message>
        <source>Rate App</source>
        <translation>Оценить программу</translation>
    </message>
    <message>
        <source>App Menu</source>
        <translation>Меню программы</translation>
    </message>
</context>
<context>
    <name>QMWidgets::RateAppStoreDialog</name>
    <message>
        <source>Rate &quot;%1&quot;</source>
        <translation>Оценить «%1»</translation>
    </message>
    <message>
        <source>Enjoying &quot;%1&quot; ?</source>
        <translation>Нравится «%1»?</translation>
    </message>
    <message>
        <source>Please rate the app on the App Store.&lt;br&gt;This will help us improve &lt;br&gt;the app&apos;s features in the future.</source>
        <translation>Оцените, пожалуйста, программу в App Store.&lt;br&gt;Это поможет нам улучшать&lt;br&gt;её в будущем.</translation>
    </message>
    <message>
        <source>&amp;Rate It Now</source>
        <translation>&amp;Оценить сейчас</translation>
    </message>
</context>
<context>
    <name>QMWidgets::RateMailDialog</name>
    <message>
        <source>Feedback about &quot;%1&quot;</source>
        <translation>Отзыв о «%1»</translation>
    </message>
    <message>
        <source>Please rate it on the app store or send us a quick e-mail&lt;br&gt;and tell us what you didn&apos;t enjoy. &lt;br&gt;Your feedback will help us improve this app.</source>
        <translation>Оцените программу в App Store или напишите нам,&lt;br&gt;что вам не понравилось.&lt;br&gt;Ваш отзыв поможет нам её улучшить.</translation>
    </message>
    <message>
        <source>&amp;Rate</source>
        <translation>&amp;Оценить</translation>
    </message>
    <message>
        <source>&amp;Write email</source>
        <translation>&amp;Написать письмо</translation>
    </message>
</context>
<context>
    <name>QMWidgets::ReminderDialog</name>
    <message>
        <source>&amp;Rate</source>
        <translation>&amp;Оценить</translation>
    </message>
    <message>
        <source>&amp;Mail</source>
        <translation>П&amp;исьмо</translation>
    </message>
</context>
<context>
    <name>QMWidgets::ReminderStateDialog</name>
    <message>
        <source>&amp;Later</source>
        <translation>&amp;Позже</translation>
    </message>
    <message>
        <source>&amp;Don&apos;t ask me again</source>
        <translation>&amp;Больше не спрашивать</translation>
    </message>
</context>
<context>
    <name>QMWidgets::RoundProgress</name>
    <message>
        <source>Overall progress</source>
        <translation>Общий ход выполнения</translation>
    </message>
</context>
<context>
    <name>QMWidgets::TellDialog</name>
    <message>
        <source>Share %1</source>
        <translation>Поделиться %1</translation>
    </message>
    <message>
        <source>If you like the app&lt;br&gt;please share it with&lt;br&gt;your friends.&lt;br&gt;Thanks!</source>
        <translation>Если вам нравится программа,&lt;br&gt;расскажите о ней&lt;br&gt;друзьям.&lt;br&gt;Спасибо!</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Закрыть</translation>
    </message>
</context>
<context>
    <name>QMWidgets::TellReminderDialog</name>
    <message>
        <source>Share</source>
        <translation>Поделиться</translation>
    </message>
    <message>
        <source>If you like the app %1,&lt;br&gt;Share it with Your Friends.&lt;br&gt;Thanks!</source>
        <translation>Если вам нравится программа %1,&lt;br&gt;расскажите о ней друзьям.&lt;br&gt;Спасибо!</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Закрыть</translation>
    </message>
</context>
<context>
    <name>QMWidgets::TellWidget</name>
    <message>
        <source>E-mail</source>
        <translation>Эл. почта</translation>
    </message>
</context>
</TS>
