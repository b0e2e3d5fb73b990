<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>ZEVGlobalUtils</name>
    <message>
        <source>Wildcard</source>
        <translation>ワイルドカード</translation>
    </message>
    <message>
        <source>Any Characters</source>
        <translation>任意の文字列</translation>
    </message>
    <message>
        <source>Any Character</source>
        <translation>任意の 1 文字</translation>
    </message>
    <message>
        <source>Any Word</source>
        <translation>任意の単語</translation>
    </message>
    <message>
        <source>White Space</source>
        <translation>空白</translation>
    </message>
    <message>
        <source>Digits</source>
        <translation>数字</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>タブ</translation>
    </message>
    <message>
        <source>Email Address</source>
        <translation>メールアドレス</translation>
    </message>
    <message>
        <source>Web Address</source>
        <translation>Web アドレス</translation>
    </message>
    <message>
        <source>Line Break</source>
        <translation>改行</translation>
    </message>
    <message>
        <source>Any</source>
        <translation>任意</translation>
    </message>
    <message>
        <source>Char</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>Word</source>
        <translation>単語</translation>
    </message>
    <message>
        <source>Wildcards</source>
        <translation>ワイルドカード</translation>
    </message>
    <message>
        <source>Contains</source>
        <translation>次を含む</translation>
    </message>
    <message>
        <source>Begins With</source>
        <translation>次で始まる</translation>
    </message>
    <message>
        <source>Matches Word</source>
        <translation>単語に一致</translation>
    </message>
    <message>
        <source>Ends With</source>
        <translation>次で終わる</translation>
    </message>
    <message>
        <source>Regular Expression</source>
        <translation>正規表現</translation>
    </message>
    <message>
        <source>Matches Contents</source>
        <translation>内容全体に一致</translation>
    </message>
    <message>
        <source>Case Sensitive</source>
        <translation>大文字と小文字を区別</translation>
    </message>
    <message>
        <source>The operation couldn’t be completed. (%1 error %2.)</source>
        <translation>操作を完了できませんでした。(%1、エラー %2)</translation>
    </message>
    <message>
        <source>The expression “%1” is not valid: %2.</source>
        <translation>式「%1」は正しくありません: %2。</translation>
    </message>
    <message>
        <source>(Character %1)</source>
        <translation>(%1 文字目)</translation>
    </message>
    <message>
        <source>a backslash stands before a character that it does not go with</source>
        <translation>バックスラッシュの後の文字が正しくありません</translation>
    </message>
    <message>
        <source>a parenthesis has no partner</source>
        <translation>括弧の対応が取れていません</translation>
    </message>
    <message>
        <source>a bracket is not closed</source>
        <translation>角括弧が閉じられていません</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>大きすぎます</translation>
    </message>
    <message>
        <source>a repetition in braces is not well formed</source>
        <translation>波括弧による繰り返しの書き方が正しくありません</translation>
    </message>
    <message>
        <source>it refers to a group that it does not have</source>
        <translation>存在しないグループを参照しています</translation>
    </message>
    <message>
        <source>a look-behind has no limit to its length</source>
        <translation>後読みの長さに上限がありません</translation>
    </message>
    <message>
        <source>a range of characters runs backwards</source>
        <translation>文字の範囲が逆になっています</translation>
    </message>
    <message>
        <source>it is not well formed</source>
        <translation>書き方が正しくありません</translation>
    </message>
    <message>
        <source>Zero KB</source>
        <translation>0 KB</translation>
    </message>
    <message>
        <source>1 byte</source>
        <translation>1 バイト</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 バイト</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1 KB</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 GB</translation>
    </message>
    <message>
        <source>%1 TB</source>
        <translation>%1 TB</translation>
    </message>
    <message>
        <source>%1 PB</source>
        <translation>%1 PB</translation>
    </message>
    <message>
        <source>%1 EB</source>
        <translation>%1 EB</translation>
    </message>
    <message>
        <source>Unknown Type (0x%x)</source>
        <translation>不明な種類 (0x%x)</translation>
    </message>
    <message>
        <source>The image “%1” could not be written: %2.</source>
        <translation>画像「%1」を書き込めませんでした: %2。</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>%lu matches</source>
        <translation>%lu 件一致</translation>
    </message>
    <message>
        <source>%d Results Found</source>
        <translation>%d 件見つかりました</translation>
    </message>
    <message>
        <source>“%1” is not a whole number.</source>
        <translation>「%1」は整数ではありません。</translation>
    </message>
    <message>
        <source>The number is too small.</source>
        <translation>数が小さすぎます。</translation>
    </message>
    <message>
        <source>The number is too large.</source>
        <translation>数が大きすぎます。</translation>
    </message>
    <message>
        <source>Insert Pattern</source>
        <translation>パターンを挿入</translation>
    </message>
    <message>
        <source>Saved Patterns</source>
        <translation>保存したパターン</translation>
    </message>
    <message>
        <source>Remove From Saved</source>
        <translation>保存した項目から削除</translation>
    </message>
    <message>
        <source>Save Current</source>
        <translation>現在のものを保存</translation>
    </message>
    <message>
        <source>Show Menu</source>
        <translation>メニューを表示</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>絞り込み</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>消去</translation>
    </message>
    <message>
        <source>No Results</source>
        <translation>結果なし</translation>
    </message>
    <message>
        <source>&amp;Find:</source>
        <translation>検索(&amp;F):</translation>
    </message>
    <message>
        <source>Find Menu</source>
        <translation>検索メニュー</translation>
    </message>
    <message>
        <source>Saved queries</source>
        <translation>保存した検索</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Replace &amp;with:</source>
        <translation>置換後(&amp;W):</translation>
    </message>
    <message>
        <source>Replace Menu</source>
        <translation>置換メニュー</translation>
    </message>
    <message>
        <source>Saved patterns</source>
        <translation>保存したパターン</translation>
    </message>
    <message>
        <source>Replace With</source>
        <translation>置換後</translation>
    </message>
    <message>
        <source>Matching Type</source>
        <translation>一致の種類</translation>
    </message>
    <message>
        <source>&amp;Case Sensitive</source>
        <translation>大文字と小文字を区別(&amp;C)</translation>
    </message>
    <message>
        <source>Replace A&amp;ll</source>
        <translation>すべて置換(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>置換(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Previous</source>
        <translation>前へ(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>次へ(&amp;N)</translation>
    </message>
    <message>
        <source>F&amp;ind</source>
        <translation>検索(&amp;I)</translation>
    </message>
    <message>
        <source>Saved patterns and options</source>
        <translation>保存したパターンとオプション</translation>
    </message>
    <message>
        <source>Previous Match</source>
        <translation>前の一致</translation>
    </message>
    <message>
        <source>Next Match</source>
        <translation>次の一致</translation>
    </message>
    <message>
        <source>&amp;Done</source>
        <translation>完了(&amp;D)</translation>
    </message>
    <message>
        <source>Replace and Fi&amp;nd</source>
        <translation>置換して検索(&amp;N)</translation>
    </message>
    <message>
        <source>Find &amp; Replace</source>
        <translation>検索と置換</translation>
    </message>
    <message>
        <source>Wrap Around</source>
        <translation>先頭に戻って検索</translation>
    </message>
    <message>
        <source>Saved Queries</source>
        <translation>保存した検索</translation>
    </message>
    <message>
        <source>Save Query</source>
        <translation>検索を保存</translation>
    </message>
    <message>
        <source>The search was too complex: matches are missing.</source>
        <translation>検索が複雑すぎるため、見つかっていない一致があります。</translation>
    </message>
    <message>
        <source>Searching… Press Escape to stop.</source>
        <translation>検索中… Esc キーで中止します。</translation>
    </message>
    <message>
        <source>The search was stopped: matches may be missing.</source>
        <translation>検索が中止されました。見つかっていない一致があるかもしれません。</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>置換</translation>
    </message>
    <message>
        <source>Replace All</source>
        <translation>すべて置換</translation>
    </message>
    <message>
        <source>&amp;Find…</source>
        <translation>検索(&amp;F)…</translation>
    </message>
    <message>
        <source>Find and &amp;Replace…</source>
        <translation>検索と置換(&amp;R)…</translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation>次を検索(&amp;N)</translation>
    </message>
    <message>
        <source>Find &amp;Previous</source>
        <translation>前を検索(&amp;P)</translation>
    </message>
    <message>
        <source>Use &amp;Selection for Find</source>
        <translation>選択部分を検索に使用(&amp;S)</translation>
    </message>
    <message>
        <source>the folder “%1” does not exist</source>
        <translation>フォルダ「%1」がありません</translation>
    </message>
    <message>
        <source>“%1” is not a folder</source>
        <translation>「%1」はフォルダではありません</translation>
    </message>
    <message>
        <source>you do not have permission to change the folder “%1”</source>
        <translation>フォルダ「%1」を変更する権限がありません</translation>
    </message>
    <message>
        <source>you do not have permission to read “%1”</source>
        <translation>「%1」を読む権限がありません</translation>
    </message>
    <message>
        <source>“%1” may not be removed from where it is</source>
        <translation>「%1」は今の場所から削除できません</translation>
    </message>
    <message>
        <source>a folder cannot be put into itself</source>
        <translation>フォルダをそれ自身の中に入れることはできません</translation>
    </message>
    <message>
        <source>it lies in the folder “%1”, whose place it would take</source>
        <translation>置き換えられるフォルダ「%1」の中にあります</translation>
    </message>
    <message>
        <source>the volume does not allow the name “%1”</source>
        <translation>ボリュームは「%1」という名前に対応していません</translation>
    </message>
    <message>
        <source>the volume takes “%1” for the name of another item in the same folder</source>
        <translation>ボリュームは「%1」を同じフォルダにある別の項目の名前とみなします</translation>
    </message>
    <message>
        <source>“%1” has more attributes than the volume can keep</source>
        <translation>「%1」にはボリュームが保存できる以上の属性があります</translation>
    </message>
    <message>
        <source>“%1” is a socket or a device</source>
        <translation>「%1」はソケットまたはデバイスです</translation>
    </message>
    <message>
        <source>“%1” is a link or a pipe, which the volume does not have</source>
        <translation>「%1」はリンクまたはパイプで、ボリュームが対応していません</translation>
    </message>
    <message>
        <source>others could read “%1” on the volume, which keeps no permissions</source>
        <translation>ボリュームが権限を保存しないため、ほかの人が「%1」を読めるようになります</translation>
    </message>
    <message>
        <source>“%1” has changed meanwhile, and was kept</source>
        <translation>「%1」は途中で変更されたため、そのまま残されました</translation>
    </message>
    <message>
        <source>“%1”: %2</source>
        <translation>「%1」: %2</translation>
    </message>
    <message>
        <source>the item does not exist</source>
        <translation>項目がありません</translation>
    </message>
    <message>
        <source>you do not have permission</source>
        <translation>権限がありません</translation>
    </message>
    <message>
        <source>an item with this name already exists</source>
        <translation>同じ名前の項目がすでにあります</translation>
    </message>
    <message>
        <source>there is not enough room</source>
        <translation>空き容量が足りません</translation>
    </message>
    <message>
        <source>the volume can only be read</source>
        <translation>ボリュームは読み出し専用です</translation>
    </message>
    <message>
        <source>it was cancelled</source>
        <translation>キャンセルされました</translation>
    </message>
    <message>
        <source>“%1” could not be moved: %2.</source>
        <translation>「%1」を移動できませんでした: %2。</translation>
    </message>
    <message>
        <source>“%1” could not be copied: %2.</source>
        <translation>「%1」をコピーできませんでした: %2。</translation>
    </message>
    <message>
        <source>“%1” could not be changed: %2.</source>
        <translation>「%1」を変更できませんでした: %2。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Apply to All</source>
        <translation>すべてに適用</translation>
    </message>
    <message>
        <source>Allow Access</source>
        <translation>アクセスを許可</translation>
    </message>
    <message>
        <source>-SandboxExceptionKey-</source>
        <translation>このフォルダのファイルを扱うには、フォルダへのアクセスが必要です。許可するにはフォルダを選んでください。</translation>
    </message>
    <message>
        <source>-SandboxSuggestion-</source>
        <translation>代わりにホームフォルダを選ぶと、その中のフォルダについて再び尋ねられることはありません。</translation>
    </message>
    <message>
        <source>Keep Both</source>
        <translation>両方とも残す</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>スキップ</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>中止</translation>
    </message>
    <message>
        <source>An item named “%@” already exists in this location.</source>
        <translation>この場所には「%@」という名前の項目がすでにあります。</translation>
    </message>
    <message>
        <source>Do you want to replace it with the one you’re moving?</source>
        <translation>移動しようとしている項目で置き換えますか?</translation>
    </message>
    <message>
        <source>Existing item:</source>
        <translation>既存の項目:</translation>
    </message>
    <message>
        <source>New item:</source>
        <translation>新しい項目:</translation>
    </message>
    <message>
        <source>Drop Image Here</source>
        <translation>ここに画像をドロップ</translation>
    </message>
    <message>
        <source>Artwork</source>
        <translation>アートワーク</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>カット</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>ペースト</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>Reading the image</source>
        <translation>画像を読み込んでいます</translation>
    </message>
    <message>
        <source>Show more</source>
        <translation>さらに表示</translation>
    </message>
    <message>
        <source>Last Used</source>
        <translation>最後に使用</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>選択…</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>選択</translation>
    </message>
    <message>
        <source>Clear Recents</source>
        <translation>履歴を消去</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>デフォルト</translation>
    </message>
    <message>
        <source>Choose an Application</source>
        <translation>アプリケーションを選択</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>アプリケーション</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Other…</source>
        <translation>その他…</translation>
    </message>
    <message>
        <source>animated</source>
        <translation>アニメーション</translation>
    </message>
    <message>
        <source>no known image format</source>
        <translation>未知の画像形式</translation>
    </message>
    <message>
        <source>no decoder for %1</source>
        <translation>%1 のデコーダがありません</translation>
    </message>
    <message>
        <source>damaged</source>
        <translation>破損</translation>
    </message>
    <message>
        <source>too large to be shown</source>
        <translation>大きすぎて表示できません</translation>
    </message>
</context>
</TS>
