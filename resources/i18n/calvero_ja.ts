<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Calvero</name>
    <message>
        <source>Click next to continue</source>
        <translation>続行するには「次へ」をクリックしてください</translation>
    </message>
    <message>
        <source>Drive Name :</source>
        <translation>ドライブ名：</translation>
    </message>
    <message>
        <source>File System :</source>
        <translation>ファイルシステム：</translation>
    </message>
    <message>
        <source>Drive Space :</source>
        <translation>容量：</translation>
    </message>
    <message>
        <source>Free Space :</source>
        <translation>空き領域：</translation>
    </message>
    <message>
        <source>Reload Drives</source>
        <translation>ドライブを再読み込み</translation>
    </message>
    <message>
        <source>Select wiping method</source>
        <translation>消去方式を選択してください</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>低</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>中</translation>
    </message>
    <message>
        <source>High</source>
        <translation>高</translation>
    </message>
    <message>
        <source>Fast Zero Write (Wipes data with 0's (Zero))</source>
        <translation>高速ゼロ書き込み（データをゼロで上書き）</translation>
    </message>
    <message>
        <source>Random </source>
        <translation>ランダム </translation>
    </message>
    <message>
        <source>DOD 5220.22.M (US Dept. of Defence Standard) </source>
        <translation>DOD 5220.22.M（米国国防総省規格） </translation>
    </message>
    <message>
        <source>N.A.V.S.O.- RLL (US Navy Standard) </source>
        <translation>N.A.V.S.O.- RLL（米国海軍規格） </translation>
    </message>
    <message>
        <source>N.A.T.O. (North Atlantic Treaty Organization  Standard)</source>
        <translation>N.A.T.O.（北大西洋条約機構規格）</translation>
    </message>
    <message>
        <source>V.S.I.T.R.  (German Standard) </source>
        <translation>V.S.I.T.R.（ドイツ規格） </translation>
    </message>
    <message>
        <source>Peter Guttman Method</source>
        <translation>Peter Guttman 方式</translation>
    </message>
    <message>
        <source>Peter Guttman + (DoD 5220.22-M)</source>
        <translation>Peter Guttman + (DoD 5220.22-M)</translation>
    </message>
    <message>
        <source>Unsecured Data: </source>
        <translation>未保護のデータ： </translation>
    </message>
    <message>
        <source>Erasing free space data securely</source>
        <translation>空き領域を安全に消去しています</translation>
    </message>
    <message>
        <source>Elapsed Time:</source>
        <translation>経過時間：</translation>
    </message>
    <message>
        <source>Erased Data:</source>
        <translation>消去済みデータ：</translation>
    </message>
    <message>
        <source>Free Space:</source>
        <translation>空き領域：</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Cloud Control </source>
        <translation>クラウドコントロール </translation>
    </message>
    <message>
        <source>Cloud Control</source>
        <translation>クラウドコントロール</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>Proceed</source>
        <translation>実行</translation>
    </message>
    <message>
        <source>Ondrel More</source>
        <translation>Ondrel More</translation>
    </message>
    <message>
        <source>Alert!!</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Are you sure , you want to erase the free space of selected drive?</source>
        <translation>選択したドライブの空き領域を消去してもよろしいですか？</translation>
    </message>
    <message>
        <source>YES</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>NO</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>Please!! 
 Close all the files related to drive , as well as do not add any data to drive during process.</source>
        <translation>ご注意ください
このドライブ上のファイルをすべて閉じ、処理中はドライブにデータを追加しないでください。</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>Unknown Error Occured</source>
        <translation>不明なエラーが発生しました</translation>
    </message>
    <message>
        <source>Relaunch the application</source>
        <translation>アプリケーションを再起動</translation>
    </message>
    <message>
        <source>Read only drive, please select other drives</source>
        <translation>このドライブは読み取り専用です。別のドライブを選択してください。</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Wiping process aborted</source>
        <translation>消去処理を中止しました</translation>
    </message>
    <message>
        <source>Wiping process is On</source>
        <translation>消去処理を実行中です</translation>
    </message>
    <message>
        <source>Cancel wiping and then quit the application</source>
        <translation>消去をキャンセルしてから、アプリケーションを終了してください。</translation>
    </message>
    <message>
        <source>Phase 1: Analyzing Data..</source>
        <translation>フェーズ 1：データを分析しています…</translation>
    </message>
    <message>
        <source>Phase 2: Securely Erasing Data..</source>
        <translation>フェーズ 2：データを安全に消去しています…</translation>
    </message>
    <message>
        <source>Please wait, finishing current process..</source>
        <translation>お待ちください。現在の処理を完了しています…</translation>
    </message>
    <message>
        <source>Your admin successfuly completed
 Calvero on:%@</source>
        <translation>管理者による Calvero の処理が正常に完了しました
対象：%@</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>次へ</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>ホーム</translation>
    </message>
    <message>
        <source>Get it now</source>
        <translation>今すぐ入手</translation>
    </message>
    <message>
        <source>Facebook</source>
        <translation>Facebook</translation>
    </message>
    <message>
        <source>Twitter</source>
        <translation>Twitter</translation>
    </message>
    <message>
        <source>Google+</source>
        <translation>Google+</translation>
    </message>
    <message>
        <source>Drives</source>
        <translation>ドライブ</translation>
    </message>
    <message>
        <source>Select a drive</source>
        <translation>ドライブを選択してください</translation>
    </message>
    <message>
        <source>Mount Path :</source>
        <translation>マウント先：</translation>
    </message>
    <message>
        <source>Fixed drive</source>
        <translation>固定ドライブ</translation>
    </message>
    <message>
        <source>Removable drive</source>
        <translation>リムーバブルドライブ</translation>
    </message>
    <message>
        <source>Network drive</source>
        <translation>ネットワークドライブ</translation>
    </message>
    <message>
        <source>No drives found</source>
        <translation>ドライブが見つかりません</translation>
    </message>
    <message>
        <source>Connect a drive, then press &quot;Reload Drives&quot;.</source>
        <translation>ドライブを接続し、「ドライブを再読み込み」を押してください。</translation>
    </message>
    <message>
        <source>Space to be erased: </source>
        <translation>消去対象の領域： </translation>
    </message>
    <message>
        <source>Passes: %1</source>
        <translation>書き込み回数：%1</translation>
    </message>
    <message>
        <source>Writes nothing</source>
        <translation>書き込みなし</translation>
    </message>
    <message>
        <source>Writes nothing: the free space is laid out and given back as it was.</source>
        <translation>何も書き込みません。空き領域を確保した後、そのまま解放します。</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進行状況</translation>
    </message>
    <message>
        <source>%1 of free space on %2 have been overwritten.</source>
        <translation>%2 の空き領域 %1 を上書きしました。</translation>
    </message>
    <message>
        <source>Only %1 of %2 of free space on %3 have been overwritten. Deleted data may still be readable there.</source>
        <translation>%3 の空き領域 %2 のうち、上書きされたのは %1 だけです。削除済みのデータが読み取れる状態で残っている可能性があります。</translation>
    </message>
    <message>
        <source>Nothing was overwritten: this method writes no data.</source>
        <translation>何も上書きされていません。この方式はデータを書き込みません。</translation>
    </message>
    <message>
        <source>Part of the free space of %1 could not be erased. Deleted data may still be readable there.</source>
        <translation>%1 の空き領域の一部を消去できませんでした。削除済みのデータが読み取れる状態で残っている可能性があります。</translation>
    </message>
    <message>
        <source>The free space has been erased, but &quot;%1&quot; could not be removed. Change the permissions and remove it, or erase the drive again.</source>
        <translation>空き領域は消去しましたが、「%1」を削除できませんでした。アクセス権を変更して削除するか、ドライブをもう一度消去してください。</translation>
    </message>
    <message>
        <source>The drive %1 was removed or has failed. Deleted data may still be readable on it.</source>
        <translation>ドライブ %1 が取り外されたか、故障しました。削除済みのデータが読み取れる状態で残っている可能性があります。</translation>
    </message>
    <message>
        <source>The storage behind the drive %1 is full or failing. Make room there before the drive is removed. Deleted data may still be readable on the drive.</source>
        <translation>ドライブ %1 の基盤となるストレージに空きがないか、ストレージが故障しています。ドライブを取り外す前に、そこに空きを作ってください。削除済みのデータが読み取れる状態で残っている可能性があります。</translation>
    </message>
    <message>
        <source>There is no drive to erase.</source>
        <translation>空き領域を消去できるドライブがありません。</translation>
    </message>
    <message>
        <source>You are not allowed to write to this drive. Select another drive, or ask its administrator.</source>
        <translation>このドライブへの書き込み権限がありません。別のドライブを選択するか、ドライブの管理者に問い合わせてください。</translation>
    </message>
    <message>
        <source>You are not allowed to write to this drive. Select another drive, or run this command in a terminal to erase its free space as administrator.</source>
        <translation>このドライブへの書き込み権限がありません。別のドライブを選択するか、管理者として空き領域を消去するには、端末でこのコマンドを実行してください。</translation>
    </message>
    <message>
        <source>You are not allowed to write to this drive. A user can change the program %1, so it must not be started as administrator. Have the administrator install Calvero, then try again.</source>
        <translation>このドライブへの書き込み権限がありません。プログラム %1 はユーザーが変更できるため、管理者として起動してはいけません。管理者に Calvero をインストールしてもらってから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>コマンド</translation>
    </message>
    <message>
        <source>Copy Command</source>
        <translation>コマンドをコピー</translation>
    </message>
    <message>
        <source>This drive is being erased by another process. Wait until it has ended, or select another drive.</source>
        <translation>このドライブの空き領域は別のプロセスが消去中です。終了するまで待つか、別のドライブを選択してください。</translation>
    </message>
    <message>
        <source>This drive is not connected any more. Press &quot;Reload Drives&quot;.</source>
        <translation>このドライブは現在接続されていません。「ドライブを再読み込み」を押してください。</translation>
    </message>
    <message>
        <source>This drive does not respond. Check its connection, then press &quot;Reload Drives&quot;.</source>
        <translation>このドライブは応答していません。接続を確認し、「ドライブを再読み込み」を押してください。</translation>
    </message>
    <message>
        <source>The storage below this drive has less room than the drive shows. Make room there, or select another drive.</source>
        <translation>このドライブの元になっているストレージの空きが、ドライブに表示されている容量より少なくなっています。そこに空きを作るか、別のドライブを選択してください。</translation>
    </message>
    <message>
        <source>This drive holds a folder &quot;%1&quot; that was not made by Calvero. Rename or remove it, then try again.</source>
        <translation>このドライブには、Calvero が作成したものではないフォルダー「%1」があります。名前を変更するか削除してから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>This drive holds a folder &quot;%1&quot; that an earlier run left and that is locked. Unlock or remove it, then try again.</source>
        <translation>このドライブには、以前の処理が残した、ロックされたフォルダー「%1」があります。ロックを解除するか削除してから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Continues to the erase methods.</source>
        <translation>消去方式の選択に進みます。</translation>
    </message>
    <message>
        <source>Returns to the drives.</source>
        <translation>ドライブの選択に戻ります。</translation>
    </message>
    <message>
        <source>Starts erasing, after a question.</source>
        <translation>確認後に消去を開始します。</translation>
    </message>
    <message>
        <source>Stops erasing and removes the temporary files.</source>
        <translation>消去を中止し、一時ファイルを削除します。</translation>
    </message>
    <message>
        <source>Lists the connected drives again.</source>
        <translation>接続されているドライブの一覧を更新します。</translation>
    </message>
    <message>
        <source>Closes Calvero and opens Ondrel MORE.</source>
        <translation>Calvero を閉じて Ondrel MORE を開きます。</translation>
    </message>
    <message>
        <source>Opens the help page in the web browser.</source>
        <translation>ヘルプページを Web ブラウザーで開きます。</translation>
    </message>
    <message>
        <source>Opens the cloud portal in the web browser.</source>
        <translation>クラウドポータルを Web ブラウザーで開きます。</translation>
    </message>
    <message>
        <source>Opens the page in the web browser.</source>
        <translation>ページを Web ブラウザーで開きます。</translation>
    </message>
    <message>
        <source>Choose the drive whose free space is to be erased.</source>
        <translation>空き領域を消去するドライブを選択してください。</translation>
    </message>
</context>
</TS>
