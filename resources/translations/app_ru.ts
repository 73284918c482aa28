<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru">
<context>
    <name>AppSettingsDialog</name>
    <message>
        <source>320 kbps</source>
        <translation>320 кбит/с</translation>
    </message>
    <message>
        <source>256 kbps</source>
        <translation>256 кбит/с</translation>
    </message>
    <message>
        <source>224 kbps</source>
        <translation>224 кбит/с</translation>
    </message>
    <message>
        <source>192 kbps</source>
        <translation>192 кбит/с</translation>
    </message>
    <message>
        <source>160 kbps</source>
        <translation>160 кбит/с</translation>
    </message>
    <message>
        <source>128 kbps</source>
        <translation>128 кбит/с</translation>
    </message>
    <message>
        <source>112 kbps</source>
        <translation>112 кбит/с</translation>
    </message>
    <message>
        <source>96 kbps</source>
        <translation>96 кбит/с</translation>
    </message>
    <message>
        <source>80 kbps</source>
        <translation>80 кбит/с</translation>
    </message>
    <message>
        <source>64 kbps</source>
        <translation>64 кбит/с</translation>
    </message>
    <message>
        <source>56 kbps</source>
        <translation>56 кбит/с</translation>
    </message>
    <message>
        <source>48 kbps</source>
        <translation>48 кбит/с</translation>
    </message>
    <message>
        <source>40 kbps</source>
        <translation>40 кбит/с</translation>
    </message>
    <message>
        <source>32 kbps</source>
        <translation>32 кбит/с</translation>
    </message>
    <message>
        <source>24 kbps</source>
        <translation>24 кбит/с</translation>
    </message>
    <message>
        <source>16 kbps</source>
        <translation>16 кбит/с</translation>
    </message>
    <message>
        <source> Settings</source>
        <extracomment>Follows the name of the application in the title of the window; keep the leading blank.</extracomment>
        <translation> — настройки</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>1 (Mono)</source>
        <translation>1 (моно)</translation>
    </message>
    <message>
        <source>2 (Stereo)</source>
        <translation>2 (стерео)</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Высокое</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Среднее</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Низкое</translation>
    </message>
    <message>
        <source>BitRate</source>
        <translation>Битрейт</translation>
    </message>
    <message>
        <source>Bits per Sample:</source>
        <translation>Разрядность (бит):</translation>
    </message>
    <message>
        <source>Channels:</source>
        <translation>Каналы:</translation>
    </message>
    <message>
        <source>Quality:</source>
        <translation>Качество:</translation>
    </message>
    <message>
        <source>Copy meta tags (id3) from source</source>
        <translation>Копировать метатеги (ID3) исходных файлов</translation>
    </message>
    <message>
        <source>Copy image files from source</source>
        <translation>Копировать изображения из исходных папок</translation>
    </message>
    <message>
        <source>Copy text files from source</source>
        <translation>Копировать текстовые файлы из исходных папок</translation>
    </message>
    <message>
        <source>Copy entire non-converted content from source</source>
        <translation>Копировать всё, что не преобразуется</translation>
    </message>
    <message>
        <source>Preserve folder structure of the source</source>
        <translation>Сохранять структуру исходных папок</translation>
    </message>
    <message>
        <source>Trim silence from start and end</source>
        <translation>Обрезать тишину в начале и в конце</translation>
    </message>
    <message>
        <source>Play sound</source>
        <translation>Подать звуковой сигнал</translation>
    </message>
    <message>
        <source>Open the destination folder</source>
        <translation>Открыть папку назначения</translation>
    </message>
    <message>
        <source>Clear the list</source>
        <translation>Очистить список</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Общие</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>Обработка</translation>
    </message>
    <message>
        <source>Opens the destination folder in finder</source>
        <translation>Открывает папку назначения в файловом менеджере</translation>
    </message>
    <message>
        <source>Sample Rate:</source>
        <translation>Частота дискретизации:</translation>
    </message>
    <message>
        <source>Source / Destination Settings</source>
        <translation>Источник и назначение</translation>
    </message>
    <message>
        <source>After Conversion</source>
        <translation>После преобразования</translation>
    </message>
    <message>
        <source>WAV Settings</source>
        <translation>Настройки WAV</translation>
    </message>
    <message>
        <source>M4A Settings</source>
        <translation>Настройки M4A</translation>
    </message>
    <message>
        <source>MP3 Settings</source>
        <translation>Настройки MP3</translation>
    </message>
    <message>
        <source>Unknown Settings</source>
        <translation>Неизвестные настройки</translation>
    </message>
    <message>
        <source>Volume level normalization (in %)</source>
        <translation>Нормализация громкости (в %)</translation>
    </message>
    <message>
        <source>Level in percent</source>
        <translation>Уровень в процентах</translation>
    </message>
    <message>
        <source>Fade In &amp;&amp; Out (in seconds)</source>
        <extracomment>The ampersand is doubled to be shown.</extracomment>
        <translation>Нарастание и затухание (в секундах)</translation>
    </message>
</context>
<context>
    <name>BatchDialog</name>
    <message>
        <source> Batch Process</source>
        <extracomment>Follows the name of the application in the title of the window; keep the leading blank.</extracomment>
        <translation> — пакетная обработка</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Пауза</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Стоп</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>One or more errors have occured!</source>
        <translation>Произошли ошибки!</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Продолжить</translation>
    </message>
    <message>
        <source>ANALYZING</source>
        <translation>АНАЛИЗ</translation>
    </message>
    <message>
        <source>DONE</source>
        <translation>ГОТОВО</translation>
    </message>
    <message>
        <source>NOT ENOUGH FREE SPACE</source>
        <translation>НЕДОСТАТОЧНО МЕСТА</translation>
    </message>
    <message>
        <source>Not enough free space</source>
        <translation>Недостаточно свободного места</translation>
    </message>
    <message>
        <source>&lt;H3&gt;Not enough free space&lt;/H3&gt;Conversion paused.&lt;br&gt;Free up space and click &quot;Resume&quot;.&lt;br&gt;To stop conversion, click &quot;Stop&quot;.</source>
        <translation>&lt;H3&gt;Недостаточно свободного места&lt;/H3&gt;Преобразование приостановлено.&lt;br&gt;Освободите место и нажмите «Продолжить».&lt;br&gt;Чтобы завершить преобразование, нажмите «Стоп».</translation>
    </message>
</context>
<context>
    <name>BatchWorker</name>
    <message>
        <source>COPYING IMAGE FILES</source>
        <translation>КОПИРОВАНИЕ ИЗОБРАЖЕНИЙ</translation>
    </message>
    <message>
        <source>COPYING TEXT FILES</source>
        <translation>КОПИРОВАНИЕ ТЕКСТОВЫХ ФАЙЛОВ</translation>
    </message>
    <message>
        <source>COPYING NON-CONVERTED CONTENT</source>
        <translation>КОПИРОВАНИЕ ОСТАЛЬНЫХ ФАЙЛОВ</translation>
    </message>
    <message>
        <source>ANALYZING</source>
        <translation>АНАЛИЗ</translation>
    </message>
    <message>
        <source>Can not convert, because the duration is to long. Please reduce the conversion sample rate and try again: </source>
        <translation>Невозможно преобразовать: запись слишком длинная. Уменьшите частоту дискретизации и повторите попытку: </translation>
    </message>
    <message>
        <source>Can not convert: </source>
        <translation>Невозможно преобразовать: </translation>
    </message>
</context>
<context>
    <name>DecoratedDial</name>
    <message>
        <source>min         max</source>
        <extracomment>Below the two ends of the dial; keep the distance between the words.</extracomment>
        <translation>мин         макс</translation>
    </message>
</context>
<context>
    <name>ErrorsDialog</name>
    <message>
        <source>ERRORS LOG</source>
        <translation>ЖУРНАЛ ОШИБОК</translation>
    </message>
    <message>
        <source>Errors of the conversion</source>
        <translation>Ошибки преобразования</translation>
    </message>
    <message>
        <source>&amp;Ok</source>
        <translation>&amp;ОК</translation>
    </message>
</context>
<context>
    <name>FadeWidget</name>
    <message>
        <source>Length of the fade-in</source>
        <translation>Длина нарастания</translation>
    </message>
    <message>
        <source>Length of the fade-out</source>
        <translation>Длина затухания</translation>
    </message>
    <message>
        <source>Longer fade-in</source>
        <translation>Увеличить нарастание</translation>
    </message>
    <message>
        <source>Longer fade-out</source>
        <translation>Увеличить затухание</translation>
    </message>
    <message>
        <source>Shorter fade-in</source>
        <translation>Уменьшить нарастание</translation>
    </message>
    <message>
        <source>Shorter fade-out</source>
        <translation>Уменьшить затухание</translation>
    </message>
</context>
<context>
    <name>GeneralOutput</name>
    <message>
        <source>Settings error, can not create: </source>
        <translation>Ошибка настроек, не удалось создать файл: </translation>
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
        <translation>Нажмите, чтобы открыть папку с аудио и видео</translation>
    </message>
    <message>
        <source>&lt;H2&gt;&lt;center&gt;Drop the audio/video files&lt;br&gt;and folders here&lt;br&gt;&lt;bold&gt;+&lt;/bold&gt;&lt;/center&gt;&lt;/H2&gt;</source>
        <translation>&lt;H2&gt;&lt;center&gt;Перетащите сюда&lt;br&gt;аудио, видео и папки&lt;br&gt;&lt;bold&gt;+&lt;/bold&gt;&lt;/center&gt;&lt;/H2&gt;</translation>
    </message>
    <message>
        <source>Change destination folder...</source>
        <translation>Изменить папку назначения…</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>По умолчанию</translation>
    </message>
    <message>
        <source>Destination folder</source>
        <translation>Папка назначения</translation>
    </message>
    <message>
        <source>Opens the destination folder in finder</source>
        <translation>Открывает папку назначения в файловом менеджере</translation>
    </message>
    <message>
        <source>Open the destination folder</source>
        <translation>Открыть папку назначения</translation>
    </message>
    <message>
        <source>Destination:</source>
        <translation>Назначение:</translation>
    </message>
    <message>
        <source>Tracks</source>
        <translation>Дорожки</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>Преобразовать</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Set destination folder</source>
        <translation>Выберите папку назначения</translation>
    </message>
    <message>
        <source>Files with unreadable names were left out: %1</source>
        <translation>Пропущены файлы с нечитаемыми именами: %1</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Ошибка</translation>
    </message>
    <message>
        <source>Can not access the destination folder.
Please verify the destination.</source>
        <translation>Нет доступа к папке назначения.
Проверьте её.</translation>
    </message>
    <message>
        <source>WAITING FOR THE PREVIOUS CONVERSION</source>
        <translation>ОЖИДАНИЕ КОНЦА ПРЕДЫДУЩЕГО ПРЕОБРАЗОВАНИЯ</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Позиция</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Стоп</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Воспроизвести</translation>
    </message>
    <message>
        <source>Remove from list</source>
        <translation>Удалить из списка</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>Воспроизвести или приостановить</translation>
    </message>
    <message>
        <source>%1 media file</source>
        <translation>Медиафайлов: %1</translation>
    </message>
    <message>
        <source>%1 media files</source>
        <translation>Медиафайлов: %1</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Finishing the tags of the converted files…</source>
        <translation>Завершается запись тегов преобразованных файлов…</translation>
    </message>
</context>
</TS>
