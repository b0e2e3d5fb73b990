<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>AllTagsDialog</name>
    <message>
        <source>All Tags</source>
        <translation>すべてのタグ</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>タグ</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>追加(&amp;A)…</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>削除(&amp;R)</translation>
    </message>
    <message>
        <source>‹Mixed›</source>
        <translation>‹混在›</translation>
    </message>
    <message>
        <source>Add Tag</source>
        <translation>タグを追加</translation>
    </message>
    <message>
        <source>Name, such as MOOD:</source>
        <translation>名前(例: MOOD):</translation>
    </message>
</context>
<context>
    <name>ArtworkDock</name>
    <message>
        <source>Artwork</source>
        <translation>アートワーク</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation>参照(&amp;B)…</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source> kB</source>
        <translation> kB</translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation>サイズ(&amp;S):</translation>
    </message>
    <message>
        <source>No tracks selected</source>
        <translation>トラックが選択されていません</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>読み込み中…</translation>
    </message>
    <message>
        <source>No artwork</source>
        <translation>アートワークなし</translation>
    </message>
    <message>
        <source>Mixed artwork</source>
        <translation>異なるアートワーク</translation>
    </message>
    <message>
        <source>Remove Artwork</source>
        <translation>アートワークを削除</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>削除(&amp;M)</translation>
    </message>
    <message>
        <source>Lon&amp;ger edge:</source>
        <translation>長辺(&amp;G):</translation>
    </message>
    <message>
        <source>Limit new art&amp;work</source>
        <translation>新しいアートワークを制限(&amp;W)</translation>
    </message>
    <message>
        <source>Not taken: %1</source>
        <translation>取り込めません: %1</translation>
    </message>
    <message>
        <source>Limit new artwork</source>
        <translation>新しいアートワークを制限</translation>
    </message>
</context>
<context>
    <name>AutomatedRun</name>
    <message>
        <source>The screenshot could not be saved.</source>
        <translation>スクリーンショットを保存できませんでした。</translation>
    </message>
    <message numerus="yes">
        <source>%n matches</source>
        <translation>
            <numerusform>%n 件一致</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CapturePreviewModel</name>
    <message>
        <source>%1: %2</source>
        <comment>a tag and its text</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>タグ</translation>
    </message>
    <message>
        <source>does not fit the pattern</source>
        <translation>パターンに合いません</translation>
    </message>
</context>
<context>
    <name>CellClipboard</name>
    <message>
        <source>Cut</source>
        <translation>カット</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>消去</translation>
    </message>
    <message>
        <source>Nothing can be pasted here</source>
        <translation>ここには何もペーストできません</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>ペースト</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Shows the tags of the audio files in a folder.</source>
        <translation>フォルダ内のオーディオファイルのタグを表示します。</translation>
    </message>
    <message>
        <source>FOLDER</source>
        <translation>フォルダ</translation>
    </message>
    <message>
        <source>Find PATTERN.</source>
        <translation>パターンを検索します。</translation>
    </message>
    <message>
        <source>PATTERN</source>
        <translation>パターン</translation>
    </message>
    <message>
        <source>How to match, from 0 (contains) to 5.</source>
        <translation>一致の種類。0 (次を含む) から 5 まで。</translation>
    </message>
    <message>
        <source>Tell upper case from lower case.</source>
        <translation>大文字と小文字を区別します。</translation>
    </message>
    <message>
        <source>Write the matches to the standard output.</source>
        <translation>一致したものを標準出力に書き出します。</translation>
    </message>
    <message>
        <source>Save a picture of the window as PNG in FILE.</source>
        <translation>ウインドウの画像を PNG としてファイルに保存します。</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Leave once all that is done.</source>
        <translation>すべて済んだら終了します。</translation>
    </message>
    <message>
        <source>Draw light on dark.</source>
        <translation>暗い背景に明るく表示します。</translation>
    </message>
    <message>
        <source>--matching-type takes a number from 0 to 5.</source>
        <translation>--matching-type には 0 から 5 までの数を指定します。</translation>
    </message>
    <message>
        <source>The folder to open, or files to select in theirs; else the last one, or the sample.</source>
        <translation>開くフォルダ、またはその中で選択するファイル。指定がなければ前回のフォルダかサンプル。</translation>
    </message>
</context>
<context>
    <name>FieldScope</name>
    <message>
        <source>All Fields</source>
        <translation>すべての項目</translation>
    </message>
</context>
<context>
    <name>FileActions</name>
    <message>
        <source>Progress of files</source>
        <translation>ファイルの進行状況</translation>
    </message>
    <message>
        <source>&amp;Move to Folder…</source>
        <translation>フォルダへ移動(&amp;M)…</translation>
    </message>
    <message>
        <source>&amp;Copy to Folder…</source>
        <translation>フォルダへコピー(&amp;C)…</translation>
    </message>
    <message>
        <source>Put Files &amp;Back</source>
        <translation>ファイルを元に戻す(&amp;B)</translation>
    </message>
    <message>
        <source>Rename Files</source>
        <translation>ファイル名を変更</translation>
    </message>
    <message>
        <source>Copy to Folder</source>
        <translation>フォルダへコピー</translation>
    </message>
    <message>
        <source>Move to Folder</source>
        <translation>フォルダへ移動</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>移動</translation>
    </message>
    <message numerus="yes">
        <source>%Ln files done</source>
        <translation>
            <numerusform>%Ln 個のファイルを処理しました</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>, %Ln skipped</source>
        <translation>
            <numerusform>、%Ln 個をスキップ</numerusform>
        </translation>
    </message>
    <message>
        <source>, stopped</source>
        <translation>、中止</translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln failed: %2</source>
        <translation>
            <numerusform>%1、%Ln 個失敗: %2</numerusform>
        </translation>
    </message>
    <message>
        <source>Re&amp;name Files…</source>
        <translation>ファイル名を変更(&amp;N)…</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>ゴミ箱に入れる</translation>
    </message>
    <message>
        <source>Move to Tras&amp;h</source>
        <translation>ゴミ箱に入れる(&amp;H)</translation>
    </message>
</context>
<context>
    <name>FillTagsDialog</name>
    <message>
        <source>&amp;Fill</source>
        <translation>入力(&amp;F)</translation>
    </message>
    <message>
        <source>Fill Tags</source>
        <translation>タグを入力</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>パターン</translation>
    </message>
    <message>
        <source>File Name and Folders</source>
        <translation>ファイル名とフォルダ</translation>
    </message>
    <message>
        <source>Fr&amp;om:</source>
        <translation>元(&amp;O):</translation>
    </message>
    <message>
        <source>&amp;Pattern:</source>
        <translation>パターン(&amp;P):</translation>
    </message>
    <message>
        <source>Text and the tags it stands between; “/” stands between folders</source>
        <translation>タグとその間の文字。フォルダの区切りは「/」</translation>
    </message>
    <message numerus="yes">
        <source>%L1 of %Ln texts fit the pattern</source>
        <translation>
            <numerusform>%Ln 件中 %L1 件がパターンに合います</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FilterField</name>
    <message>
        <source>Filter</source>
        <translation>絞り込み</translation>
    </message>
    <message>
        <source>Shows only the tracks that have these words</source>
        <translation>これらの語を含むトラックだけを表示します</translation>
    </message>
</context>
<context>
    <name>FindPanel</name>
    <message>
        <source>Which tags to search</source>
        <translation>検索するタグ</translation>
    </message>
</context>
<context>
    <name>FindPanelDialog</name>
    <message>
        <source>Find and Replace in Tracks</source>
        <translation>トラック内の検索と置換</translation>
    </message>
    <message>
        <source>Preview Replace&amp;ments…</source>
        <translation>置換をプレビュー(&amp;M)…</translation>
    </message>
</context>
<context>
    <name>FolderMenus</name>
    <message>
        <source>Folder</source>
        <translation>フォルダ</translation>
    </message>
    <message>
        <source>Open Recen&amp;t</source>
        <translation>最近開いたフォルダ(&amp;T)</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>フォルダを開く</translation>
    </message>
</context>
<context>
    <name>GalleryWindow</name>
    <message>
        <source>Gallery</source>
        <translation>ギャラリー</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>ページ</translation>
    </message>
</context>
<context>
    <name>GenreMenu</name>
    <message>
        <source>Gen&amp;re</source>
        <translation>ジャンル(&amp;R)</translation>
    </message>
</context>
<context>
    <name>Inspector</name>
    <message>
        <source>&amp;Comment:</source>
        <translation>コメント(&amp;C):</translation>
    </message>
    <message>
        <source>Mixed</source>
        <translation>混在</translation>
    </message>
    <message>
        <source>Edit %1</source>
        <translation>%1を編集</translation>
    </message>
    <message>
        <source>%1, changed %2</source>
        <translation>%1、%2 変更</translation>
    </message>
    <message>
        <source>T&amp;itle:</source>
        <translation>タイトル(&amp;I):</translation>
    </message>
    <message>
        <source>Com&amp;poser:</source>
        <translation>作曲者(&amp;P):</translation>
    </message>
    <message>
        <source>&amp;Year:</source>
        <translation>年(&amp;Y):</translation>
    </message>
    <message>
        <source>&amp;Disc:</source>
        <translation>ディスク(&amp;D):</translation>
    </message>
    <message>
        <source>of</source>
        <comment>between a track&apos;s number and the number of tracks</comment>
        <translation>/</translation>
    </message>
    <message>
        <source>The tracks differ. The Delete key empties this tag of all.</source>
        <translation>トラックごとに異なります。Delete キーですべてのこのタグを空にします。</translation>
    </message>
    <message>
        <source>A&amp;lbum:</source>
        <translation>アルバム(&amp;L):</translation>
    </message>
    <message>
        <source>Album ar&amp;tist:</source>
        <translation>アルバムアーティスト(&amp;T):</translation>
    </message>
    <message>
        <source>Artist:</source>
        <translation>アーティスト:</translation>
    </message>
    <message>
        <source>Genre:</source>
        <translation>ジャンル:</translation>
    </message>
    <message>
        <source>Track:</source>
        <translation>トラック番号:</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Open Folder…</source>
        <translation>フォルダを開く(&amp;O)…</translation>
    </message>
    <message>
        <source>&amp;Reload Folder</source>
        <translation>フォルダを再読み込み(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>Te&amp;xt</source>
        <translation>テキスト(&amp;X)</translation>
    </message>
    <message>
        <source>Preview Replace&amp;ments…</source>
        <translation>置換をプレビュー(&amp;M)…</translation>
    </message>
    <message>
        <source>&amp;Quick Open…</source>
        <translation>クイックオープン(&amp;Q)…</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>すべて選択(&amp;A)</translation>
    </message>
    <message>
        <source>Select Ro&amp;w</source>
        <translation>行を選択(&amp;W)</translation>
    </message>
    <message>
        <source>Select &amp;Column</source>
        <translation>列を選択(&amp;C)</translation>
    </message>
    <message>
        <source>Tracks</source>
        <translation>トラック</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>タグ</translation>
    </message>
    <message>
        <source>Reading progress</source>
        <translation>読み込みの進行状況</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>フォルダを開く</translation>
    </message>
    <message>
        <source>Save Changes</source>
        <translation>変更を保存</translation>
    </message>
    <message>
        <source>Save the changes?</source>
        <translation>変更を保存しますか?</translation>
    </message>
    <message>
        <source>Texts were changed. They will be lost if they are not saved.</source>
        <translation>テキストが変更されています。保存しないと失われます。</translation>
    </message>
    <message>
        <source>Not read: %1 (%2)</source>
        <translation>読み込めません: %1 (%2)</translation>
    </message>
    <message>
        <source>%1 and other folders (%2 in all)</source>
        <translation>%1 とほかのフォルダ (全部で %2)</translation>
    </message>
    <message>
        <source>The folder “%1” could not be read: %2</source>
        <translation>フォルダ「%1」を読み込めませんでした: %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln files were changed by another program and read again</source>
        <translation>
            <numerusform>%Ln 個のファイルがほかのプログラムで変更されたため、読み直しました</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln files are not there any more</source>
        <translation>
            <numerusform>%Ln 個のファイルがなくなりました</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln tracks</source>
        <translation>
            <numerusform>%Ln トラック</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln unreadable</source>
        <translation>
            <numerusform>%1、%Ln 個は読み込み不可</numerusform>
        </translation>
    </message>
    <message>
        <source>Find in Fi&amp;elds…</source>
        <translation>項目内を検索(&amp;E)…</translation>
    </message>
    <message>
        <source>Reading was stopped: tracks are missing</source>
        <translation>読み込みが中止されました。一部のトラックがありません</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Columns</source>
        <translation>列(&amp;C)</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new files</source>
        <translation>
            <numerusform>新しいファイル %Ln 個</numerusform>
        </translation>
    </message>
    <message>
        <source>%L1 of %2</source>
        <comment>tracks that are shown, of so many tracks</comment>
        <translation>%2 中 %L1</translation>
    </message>
    <message>
        <source>&amp;Filter</source>
        <translation>絞り込み(&amp;F)</translation>
    </message>
    <message>
        <source>Only Tracks with &amp;Matches</source>
        <translation>一致するトラックのみ(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Next Track</source>
        <translation>次のトラック(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Previous Track</source>
        <translation>前のトラック(&amp;P)</translation>
    </message>
</context>
<context>
    <name>NumberingDialog</name>
    <message>
        <source>Set the &amp;total, too</source>
        <translation>総数も設定(&amp;T)</translation>
    </message>
    <message>
        <source>Begin anew in each &amp;folder</source>
        <translation>フォルダごとに最初から(&amp;F)</translation>
    </message>
    <message>
        <source>Number Tracks</source>
        <translation>トラック番号を付ける</translation>
    </message>
    <message>
        <source>Tracks in their order in the table</source>
        <translation>トラックに表の順で</translation>
    </message>
    <message>
        <source>Discs, one for each folder</source>
        <translation>ディスクにフォルダごとに</translation>
    </message>
    <message>
        <source>&amp;Number:</source>
        <translation>番号(&amp;N):</translation>
    </message>
    <message>
        <source>&amp;Begin with:</source>
        <translation>開始番号(&amp;B):</translation>
    </message>
</context>
<context>
    <name>PreviewTable</name>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
</context>
<context>
    <name>ProgressView</name>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>QuickOpen</name>
    <message>
        <source>Quick Open</source>
        <translation>クイックオープン</translation>
    </message>
    <message>
        <source>Title or artist</source>
        <translation>タイトルまたはアーティスト</translation>
    </message>
    <message>
        <source>Tracks</source>
        <translation>トラック</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1、%2</translation>
    </message>
</context>
<context>
    <name>QuickOpenModel</name>
    <message>
        <source>%1 – %2</source>
        <translation>%1 – %2</translation>
    </message>
</context>
<context>
    <name>RenameDialog</name>
    <message>
        <source>&amp;Rename</source>
        <translation>名前を変更(&amp;R)</translation>
    </message>
    <message>
        <source>Rename Files</source>
        <translation>ファイル名を変更</translation>
    </message>
    <message>
        <source>&amp;Pattern:</source>
        <translation>パターン(&amp;P):</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>挿入(&amp;I)</translation>
    </message>
    <message>
        <source>Insert a placeholder for a tag</source>
        <translation>タグのプレースホルダを挿入</translation>
    </message>
    <message numerus="yes">
        <source>%L1 of %Ln files will be renamed</source>
        <translation>
            <numerusform>%Ln 個中 %L1 個のファイル名が変わります</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>; %Ln names are taken</source>
        <translation>
            <numerusform>。%Ln 個の名前は使われています</numerusform>
        </translation>
    </message>
    <message>
        <source>“/” makes folders, such as %albumartist%/%album%/%track% - %title%</source>
        <translation>「/」はフォルダを作ります。例: %albumartist%/%album%/%track% - %title%</translation>
    </message>
</context>
<context>
    <name>RenamePreviewModel</name>
    <message>
        <source>Before</source>
        <translation>変更前</translation>
    </message>
    <message>
        <source>After</source>
        <translation>変更後</translation>
    </message>
    <message>
        <source>This name is taken; you will be asked what to do.</source>
        <translation>この名前は使われています。どうするかは後で尋ねられます。</translation>
    </message>
</context>
<context>
    <name>ReplaceDialog</name>
    <message>
        <source>&amp;Replace</source>
        <translation>置換(&amp;R)</translation>
    </message>
    <message>
        <source>Preview Replacements</source>
        <translation>置換のプレビュー</translation>
    </message>
    <message numerus="yes">
        <source>%L1 of %Ln texts will change</source>
        <translation>
            <numerusform>%Ln 件中 %L1 件のテキストが変わります</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReplacePreviewModel</name>
    <message>
        <source>Field</source>
        <translation>項目</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>変更前</translation>
    </message>
    <message>
        <source>After</source>
        <translation>変更後</translation>
    </message>
</context>
<context>
    <name>SizeLabel</name>
    <message numerus="yes">
        <source>%Ln selected: %1</source>
        <translation>
            <numerusform>%Ln 個選択: %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TagReader</name>
    <message>
        <source>Not a regular file</source>
        <translation>通常のファイルではありません</translation>
    </message>
    <message>
        <source>Empty file</source>
        <translation>空のファイル</translation>
    </message>
    <message>
        <source>No audio found: damaged or cut off</source>
        <translation>音声がありません。破損しているか途中で切れています</translation>
    </message>
</context>
<context>
    <name>TagTokens</name>
    <message>
        <source>Next Value</source>
        <translation>次の値</translation>
    </message>
</context>
<context>
    <name>TagWriter</name>
    <message>
        <source>No audio found: damaged or cut off</source>
        <translation>音声がありません。破損しているか途中で切れています</translation>
    </message>
    <message>
        <source>The tags of this file cannot hold artwork</source>
        <translation>このファイルのタグにはアートワークを入れられません</translation>
    </message>
    <message>
        <source>The tags could not be written</source>
        <translation>タグを書き込めませんでした</translation>
    </message>
    <message>
        <source>The tags of this file cannot hold “%1”</source>
        <translation>このファイルのタグには「%1」を入れられません</translation>
    </message>
    <message>
        <source>The tags of this file cannot hold the artwork</source>
        <translation>このファイルのタグにはこのアートワークを入れられません</translation>
    </message>
</context>
<context>
    <name>TextEditing</name>
    <message>
        <source>Edit %1</source>
        <translation>%1を編集</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>%1を取り消す(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>取り消す(&amp;U)</translation>
    </message>
    <message>
        <source>Re&amp;do %1</source>
        <translation>%1をやり直す(&amp;D)</translation>
    </message>
    <message>
        <source>Re&amp;do</source>
        <translation>やり直す(&amp;D)</translation>
    </message>
    <message>
        <source>%1…</source>
        <translation>%1…</translation>
    </message>
    <message>
        <source>%1: nothing to change</source>
        <translation>%1: 変更はありません</translation>
    </message>
    <message>
        <source>&amp;Fill Tags…</source>
        <translation>タグを入力(&amp;F)…</translation>
    </message>
    <message>
        <source>Fill Tags</source>
        <translation>タグを入力</translation>
    </message>
    <message>
        <source>All Tags</source>
        <translation>すべてのタグ</translation>
    </message>
    <message>
        <source>Number Tracks</source>
        <translation>トラック番号を付ける</translation>
    </message>
    <message>
        <source>All Ta&amp;gs…</source>
        <translation>すべてのタグ(&amp;G)…</translation>
    </message>
    <message>
        <source>Number Tracks…</source>
        <translation>トラック番号を付ける…</translation>
    </message>
</context>
<context>
    <name>TextTransform</name>
    <message>
        <source>&amp;Capitalize Words</source>
        <translation>単語の先頭を大文字に(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Title Case</source>
        <translation>タイトル表記(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Sentence case</source>
        <translation>文頭のみ大文字(&amp;S)</translation>
    </message>
    <message>
        <source>c&amp;amelCase</source>
        <translation>キャメルケース(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Underscores to Spaces</source>
        <translation>下線を空白に(&amp;U)</translation>
    </message>
    <message>
        <source>S&amp;paces to Underscores</source>
        <translation>空白を下線に(&amp;P)</translation>
    </message>
    <message>
        <source>T&amp;rim Spaces</source>
        <translation>前後の空白を除く(&amp;R)</translation>
    </message>
    <message>
        <source>Strip Pu&amp;nctuation</source>
        <translation>句読点を除く(&amp;N)</translation>
    </message>
    <message>
        <source>Single Spaces</source>
        <translation>空白を一つに</translation>
    </message>
    <message>
        <source>UPPER CASE</source>
        <translation>大文字に</translation>
    </message>
    <message>
        <source>lower case</source>
        <translation>小文字に</translation>
    </message>
</context>
<context>
    <name>TrackInfo</name>
    <message>
        <source>Folder</source>
        <translation>フォルダ</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>長さ</translation>
    </message>
    <message>
        <source>Bit Rate</source>
        <translation>ビットレート</translation>
    </message>
    <message>
        <source>Sample Rate</source>
        <translation>サンプルレート</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>チャンネル</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>形式</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>変更日</translation>
    </message>
    <message>
        <source>%1 kbit/s</source>
        <translation>%1 kbit/s</translation>
    </message>
    <message>
        <source>%1 Hz</source>
        <translation>%1 Hz</translation>
    </message>
</context>
<context>
    <name>TrackMenus</name>
    <message>
        <source>Open &amp;With</source>
        <translation>このアプリケーションで開く(&amp;W)</translation>
    </message>
    <message>
        <source>Genre</source>
        <translation>ジャンル</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>再生(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Open Containing Folder</source>
        <translation>フォルダを表示(&amp;O)</translation>
    </message>
</context>
<context>
    <name>TrackSaving</name>
    <message numerus="yes">
        <source>… and %Ln more</source>
        <translation>
            <numerusform>…ほか %Ln 個</numerusform>
        </translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Files were changed by another program since they were read.</source>
        <translation>読み込んだ後、ファイルがほかのプログラムで変更されました。</translation>
    </message>
    <message>
        <source>Overwriting changes only the tags that you have changed. Reloading drops your changes to these files.</source>
        <translation>上書きでは、自分で変更したタグだけが書き換わります。再読み込みでは、これらのファイルの変更が失われます。</translation>
    </message>
    <message>
        <source>&amp;Overwrite</source>
        <translation>上書き(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Reload</source>
        <translation>再読み込み(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Leave</source>
        <translation>そのままにする(&amp;L)</translation>
    </message>
    <message>
        <source>Saving…</source>
        <translation>保存中…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Some files could not be saved. They are as they were.</source>
        <translation>保存できなかったファイルがあります。元のままです。</translation>
    </message>
</context>
<context>
    <name>TrackTableModel</name>
    <message>
        <source>File Name</source>
        <translation>ファイル名</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>タイトル</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>アーティスト</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>アルバム</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>年</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>トラック番号</translation>
    </message>
    <message>
        <source>Genre</source>
        <translation>ジャンル</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>コメント</translation>
    </message>
    <message>
        <source>Changed, not saved</source>
        <translation>変更済み、未保存</translation>
    </message>
    <message>
        <source>Album Artist</source>
        <translation>アルバムアーティスト</translation>
    </message>
    <message>
        <source>Composer</source>
        <translation>作曲者</translation>
    </message>
    <message>
        <source>Tracks</source>
        <translation>トラック</translation>
    </message>
    <message>
        <source>Disc</source>
        <translation>ディスク</translation>
    </message>
    <message>
        <source>Discs</source>
        <translation>ディスク数</translation>
    </message>
</context>
<context>
    <name>TransformDialog</name>
    <message>
        <source>Transform Text</source>
        <translation>テキストを変換</translation>
    </message>
    <message>
        <source>User’s Default</source>
        <translation>ユーザの設定</translation>
    </message>
    <message>
        <source>English</source>
        <translation>英語</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>トルコ語</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation>オランダ語</translation>
    </message>
    <message>
        <source>German</source>
        <translation>ドイツ語</translation>
    </message>
    <message>
        <source>Whose small and capital letters to use</source>
        <translation>どの言語の大文字と小文字を使うか</translation>
    </message>
    <message>
        <source>deadmau5, k.d. lang</source>
        <translation>deadmau5, k.d. lang</translation>
    </message>
    <message>
        <source>Spellings that stay as they are, with commas between them</source>
        <translation>そのままにする表記。コンマで区切ります</translation>
    </message>
    <message>
        <source>&amp;Transform:</source>
        <translation>変換(&amp;T):</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>言語(&amp;L):</translation>
    </message>
    <message>
        <source>&amp;Never touch:</source>
        <translation>変更しない表記(&amp;N):</translation>
    </message>
    <message numerus="yes">
        <source>%L1 of %Ln texts will change</source>
        <translation>
            <numerusform>%Ln 件中 %L1 件のテキストが変わります</numerusform>
        </translation>
    </message>
    <message>
        <source>The text will not change</source>
        <translation>テキストは変わりません</translation>
    </message>
    <message>
        <source>The text will change</source>
        <translation>テキストが変わります</translation>
    </message>
    <message numerus="yes">
        <source>None of %Ln texts will change</source>
        <translation>
            <numerusform>%Ln 件のテキストはどれも変わりません</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TransformPreviewModel</name>
    <message>
        <source>Before</source>
        <translation>変更前</translation>
    </message>
    <message>
        <source>After</source>
        <translation>変更後</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Tag Editor</source>
        <translation>タグエディタ</translation>
    </message>
    <message>
        <source>A screenshot could not be saved.</source>
        <translation>スクリーンショットを保存できませんでした。</translation>
    </message>
</context>
</TS>
