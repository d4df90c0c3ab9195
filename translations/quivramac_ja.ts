<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name>AskClaudeCard</name>
    <message>
        <source>Ask Claude Code</source>
        <translation>Claude Code に質問</translation>
    </message>
    <message>
        <source>Copied!</source>
        <translation>コピーしました</translation>
    </message>
    <message>
        <source>Copy to Clipboard</source>
        <translation>クリップボードにコピー</translation>
    </message>
</context>
<context>
    <name>CommandField</name>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
</context>
<context>
    <name>DeviceRow</name>
    <message>
        <source>Revoke...</source>
        <translation>取り消す…</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Paired %1</source>
        <translation>%1 にペアリング</translation>
    </message>
    <message>
        <source>Revoke “%1”? It will no longer be able to log in to this computer.</source>
        <translation>「%1」を取り消しますか？このコンピュータにログインできなくなります。</translation>
    </message>
    <message>
        <source>Revoke</source>
        <translation>取り消す</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>DevicesTab</name>
    <message>
        <source>Paired Devices</source>
        <translation>ペアリング済みのデバイス</translation>
    </message>
    <message>
        <source>No phone can log in with a paired key yet.</source>
        <translation>ペアリングしたキーでログインできる電話はまだありません。</translation>
    </message>
</context>
<context>
    <name>ExplanationStep</name>
    <message>
        <source>A bridge that never drops.</source>
        <translation>途切れない架け橋。</translation>
    </message>
    <message>
        <source>Survives WiFi switches and sleep</source>
        <translation>Wi-Fi の切り替えやスリープにも耐える</translation>
    </message>
    <message>
        <source>Reconnects automatically</source>
        <translation>自動で再接続</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>続ける</translation>
    </message>
</context>
<context>
    <name>GeneralTab</name>
    <message>
        <source>Server</source>
        <translation>サーバ</translation>
    </message>
    <message>
        <source>Start server automatically</source>
        <translation>サーバを自動的に起動</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>ポート</translation>
    </message>
    <message>
        <source>Local IP</source>
        <translation>ローカル IP</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>実行中</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Uptime</source>
        <translation>稼働時間</translation>
    </message>
    <message>
        <source>Stop Server</source>
        <translation>サーバを停止</translation>
    </message>
    <message>
        <source>Start Server</source>
        <translation>サーバを起動</translation>
    </message>
    <message>
        <source>Server running</source>
        <translation>サーバー実行中</translation>
    </message>
    <message>
        <source>Server stopped</source>
        <translation>サーバー停止中</translation>
    </message>
</context>
<context>
    <name>HeaderSection</name>
    <message>
        <source>Port %1</source>
        <translation>ポート %1</translation>
    </message>
    <message>
        <source>Server off</source>
        <translation>サーバ停止中</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>サーバ</translation>
    </message>
    <message>
        <source>Server running on port %1</source>
        <translation>サーバーはポート %1 で実行中</translation>
    </message>
</context>
<context>
    <name>InstallEtSheet</name>
    <message>
        <source>Install Eternal Terminal</source>
        <translation>Eternal Terminal をインストール</translation>
    </message>
    <message>
        <source>This copy of QuivraMac was built without its own Eternal Terminal server, which keeps your iPhone&apos;s sessions alive. Install Eternal Terminal once: QuivraMac finds its etserver on your PATH.</source>
        <translation>この QuivraMac は、iPhone のセッションを維持する Eternal Terminal サーバを内蔵せずにビルドされています。Eternal Terminal を一度インストールしてください。QuivraMac は PATH から etserver を見つけます。</translation>
    </message>
    <message>
        <source>1. Run this in a terminal:</source>
        <translation>1. ターミナルで次を実行します:</translation>
    </message>
    <message>
        <source>1. Build and install it from source, as the download page describes.</source>
        <translation>1. ダウンロードページの説明どおりにソースからビルドしてインストールします。</translation>
    </message>
    <message>
        <source>2. Turn on the server with the switch in the QuivraMac panel.</source>
        <translation>2. QuivraMac パネルのスイッチでサーバをオンにします。</translation>
    </message>
    <message>
        <source>Open Download Page</source>
        <translation>ダウンロードページを開く</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
</context>
<context>
    <name>InstallLink</name>
    <message>
        <source>How to install Eternal Terminal...</source>
        <translation>Eternal Terminal のインストール方法…</translation>
    </message>
</context>
<context>
    <name>LogsTab</name>
    <message>
        <source>Server Logs</source>
        <translation>サーバのログ</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>消去</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>No logs yet...</source>
        <translation>ログはまだありません…</translation>
    </message>
</context>
<context>
    <name>MenuBarView</name>
    <message>
        <source>How to install Eternal Terminal...</source>
        <translation>Eternal Terminal のインストール方法…</translation>
    </message>
    <message>
        <source>Last paired: %1</source>
        <translation>最後のペアリング: %1</translation>
    </message>
    <message>
        <source>Setup Assistant...</source>
        <translation>セットアップアシスタント…</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>設定…</translation>
    </message>
    <message>
        <source>Quit QuivraMac</source>
        <translation>QuivraMac を終了</translation>
    </message>
</context>
<context>
    <name>OnboardingFlow</name>
    <message>
        <source>The code entered on your iPhone didn&apos;t match.</source>
        <translation>iPhone で入力されたコードが一致しませんでした。</translation>
    </message>
    <message>
        <source>No device connected within the time limit.</source>
        <translation>制限時間内にデバイスが接続されませんでした。</translation>
    </message>
</context>
<context>
    <name>PairingSection</name>
    <message>
        <source>Pair New Device</source>
        <translation>新しいデバイスをペアリング</translation>
    </message>
    <message>
        <source>Pairing Mode</source>
        <translation>ペアリングモード</translation>
    </message>
    <message>
        <source>Enter this code in Quivra on your iPhone</source>
        <translation>iPhone の Quivra でこのコードを入力してください</translation>
    </message>
    <message>
        <source>Stop Pairing</source>
        <translation>ペアリングを停止</translation>
    </message>
    <message>
        <source>Time left: %1</source>
        <translation>残り時間: %1</translation>
    </message>
    <message>
        <source>Pairing code %1</source>
        <translation>ペアリングコード %1</translation>
    </message>
</context>
<context>
    <name>PairingSession</name>
    <message>
        <source>Someone is guessing the code from %1</source>
        <translation>%1 から誰かがコードを推測しています</translation>
    </message>
    <message numerus="yes">
        <source>Someone is guessing the code from %1 and %n other address(es)</source>
        <translation>
            <numerusform>%1 とほか %n 件のアドレスから誰かがコードを推測しています</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PairingStep</name>
    <message>
        <source>Open Quivra on your iPhone</source>
        <translation>iPhone で Quivra を開きます</translation>
    </message>
    <message>
        <source>Tap &quot;Add Mac&quot;</source>
        <translation>「Add Mac」をタップします</translation>
    </message>
    <message>
        <source>Enter this code:</source>
        <translation>このコードを入力します:</translation>
    </message>
    <message>
        <source>Expires in %1</source>
        <translation>有効期限まで %1</translation>
    </message>
    <message>
        <source>Having trouble?</source>
        <translation>うまくいきませんか？</translation>
    </message>
    <message>
        <source>Try manual setup</source>
        <translation>手動で設定する</translation>
    </message>
    <message>
        <source>Exchanging keys...</source>
        <translation>キーを交換しています…</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>再試行</translation>
    </message>
    <message>
        <source>Add this computer by hand</source>
        <translation>このコンピュータを手動で追加</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Pairing code %1</source>
        <translation>ペアリングコード %1</translation>
    </message>
</context>
<context>
    <name>PhoneService</name>
    <message>
        <source>Port %1 is in use, so phones cannot pair</source>
        <translation>ポート %1 が使用中のため、電話をペアリングできません</translation>
    </message>
    <message>
        <source>Phones cannot pair: %1</source>
        <translation>電話をペアリングできません: %1</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>ログ</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>デバイス</translation>
    </message>
</context>
<context>
    <name>SetupWindow</name>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>SuccessStep</name>
    <message>
        <source>QuivraMac lives here</source>
        <translation>QuivraMac はここにいます</translation>
    </message>
    <message>
        <source>You&apos;re all set!</source>
        <translation>準備完了です！</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>ログイン時に起動</translation>
    </message>
    <message>
        <source>Recommended</source>
        <translation>推奨</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
</context>
<context>
    <name>SystemCheck</name>
    <message>
        <source>Looking good!</source>
        <translation>問題ありません！</translation>
    </message>
    <message>
        <source>Almost there...</source>
        <translation>あと少しです…</translation>
    </message>
    <message>
        <source>SSH Keys</source>
        <translation>SSH キー</translation>
    </message>
    <message>
        <source>Ready to authenticate</source>
        <translation>認証の準備ができています</translation>
    </message>
    <message>
        <source>Quivra Server</source>
        <translation>Quivra サーバ</translation>
    </message>
    <message>
        <source>Running on port %1</source>
        <translation>ポート %1 で実行中</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>ネットワーク</translation>
    </message>
    <message>
        <source>Connected at %1</source>
        <translation>%1 で接続済み</translation>
    </message>
    <message>
        <source>~/.ssh directory doesn&apos;t exist</source>
        <translation>~/.ssh フォルダがありません</translation>
    </message>
    <message>
        <source>~/.ssh has wrong permissions</source>
        <translation>~/.ssh のアクセス権が正しくありません</translation>
    </message>
    <message>
        <source>authorized_keys has wrong permissions</source>
        <translation>authorized_keys のアクセス権が正しくありません</translation>
    </message>
    <message>
        <source>Server couldn&apos;t start</source>
        <translation>サーバを起動できませんでした</translation>
    </message>
    <message>
        <source>Eternal Terminal is not installed</source>
        <translation>Eternal Terminal がインストールされていません</translation>
    </message>
    <message>
        <source>Port %1 is in use</source>
        <translation>ポート %1 は使用中です</translation>
    </message>
    <message>
        <source>No network connection</source>
        <translation>ネットワークに接続されていません</translation>
    </message>
</context>
<context>
    <name>SystemCheckStep</name>
    <message>
        <source>Fix</source>
        <translation>修正</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>再試行</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>続ける</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>待機中</translation>
    </message>
    <message>
        <source>checking</source>
        <translation>確認中</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>失敗</translation>
    </message>
</context>
<context>
    <name>TrayIcon</name>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Pair New Device</source>
        <translation>新しいデバイスをペアリング</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>設定…</translation>
    </message>
    <message>
        <source>Quit QuivraMac</source>
        <translation>QuivraMac を終了</translation>
    </message>
    <message>
        <source>Server running on port %1</source>
        <translation>サーバはポート %1 で実行中</translation>
    </message>
    <message>
        <source>Server not running: %1</source>
        <translation>サーバは実行されていません: %1</translation>
    </message>
    <message>
        <source>Server off</source>
        <translation>サーバ停止中</translation>
    </message>
    <message>
        <source>Setup is not finished yet</source>
        <translation>セットアップはまだ完了していません</translation>
    </message>
    <message>
        <source>Pairing: the code expires in %1</source>
        <translation>ペアリング: コードの有効期限まで %1</translation>
    </message>
</context>
<context>
    <name>UiController</name>
    <message>
        <source>Address: %1
User: %2
SSH port: %3
Eternal Terminal port: %4</source>
        <translation>アドレス: %1
ユーザ: %2
SSH ポート: %3
Eternal Terminal ポート: %4</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; is connecting...</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; が接続しています…</translation>
    </message>
</context>
<context>
    <name>WelcomeStep</name>
    <message>
        <source>Continue</source>
        <translation>続ける</translation>
    </message>
</context>
<context>
    <name>formats</name>
    <message>
        <source>%1h %2m %3s</source>
        <translation>%1時間%2分%3秒</translation>
    </message>
    <message>
        <source>%1s</source>
        <translation>%1秒</translation>
    </message>
    <message>
        <source>%1m %2s</source>
        <translation>%1分%2秒</translation>
    </message>
</context>
<context>
    <name>quivractl</name>
    <message>
        <source>%1h %2m %3s</source>
        <translation>%1時間%2分%3秒</translation>
    </message>
    <message>
        <source>The status endpoint did not answer (%1); is the server running?</source>
        <translation>状態エンドポイントが応答しませんでした (%1)。サーバは実行中ですか？</translation>
    </message>
    <message>
        <source>Server:       %1</source>
        <translation>サーバ:       %1</translation>
    </message>
    <message>
        <source>running, up %1</source>
        <translation>実行中、稼働時間 %1</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Reason:       %1</source>
        <translation>理由:         %1</translation>
    </message>
    <message>
        <source>Port:         %1</source>
        <translation>ポート:       %1</translation>
    </message>
    <message>
        <source>Address:      %1</source>
        <translation>アドレス:     %1</translation>
    </message>
    <message>
        <source>Pairing:      %1</source>
        <translation>ペアリング:   %1</translation>
    </message>
    <message>
        <source>on</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>Last paired:  %1</source>
        <translation>最後の端末:   %1</translation>
    </message>
    <message>
        <source>none</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Server running, accepting connections on port %1</source>
        <translation>サーバは実行中で、ポート %1 で接続を受け付けています</translation>
    </message>
    <message>
        <source>The server did not start: %1</source>
        <translation>サーバが起動しませんでした: %1</translation>
    </message>
    <message>
        <source>it stopped; see quivractl logs</source>
        <translation>停止しました。quivractl logs を確認してください</translation>
    </message>
    <message>
        <source>The server is running but port %1 did not accept connections within %2 s; see quivractl logs</source>
        <translation>サーバは実行中ですが、ポート %1 が %2 秒以内に接続を受け付けませんでした。quivractl logs を確認してください</translation>
    </message>
    <message>
        <source>The server did not stop within %1 s; see quivractl logs</source>
        <translation>サーバが %1 秒以内に停止しませんでした。quivractl logs を確認してください</translation>
    </message>
    <message>
        <source>Server stopped</source>
        <translation>サーバを停止しました</translation>
    </message>
    <message>
        <source>The server is not running, so no phone can pair. Start it with: quivractl start</source>
        <translation>サーバが実行されていないため、電話をペアリングできません。次のコマンドで起動してください: quivractl start</translation>
    </message>
    <message>
        <source>The server is not running (%1), so no phone can pair.</source>
        <translation>サーバが実行されていないため (%1)、電話をペアリングできません。</translation>
    </message>
    <message>
        <source>Pairing code: %1</source>
        <translation>ペアリングコード: %1</translation>
    </message>
    <message>
        <source>Address: %1</source>
        <translation>アドレス: %1</translation>
    </message>
    <message>
        <source>Open Quivra on your iPhone and enter the code. Ctrl-C cancels.</source>
        <translation>iPhone で Quivra を開いてコードを入力してください。Ctrl-C で中止します。</translation>
    </message>
    <message>
        <source>Expires in %1</source>
        <translation>有効期限まで %1</translation>
    </message>
    <message>
        <source>Paired with %1</source>
        <translation>%1 とペアリングしました</translation>
    </message>
    <message>
        <source>The pairing code expired.</source>
        <translation>ペアリングコードの有効期限が切れました。</translation>
    </message>
    <message>
        <source>Pairing mode was switched off.</source>
        <translation>ペアリングモードがオフになりました。</translation>
    </message>
    <message>
        <source>Pairing cancelled.</source>
        <translation>ペアリングを中止しました。</translation>
    </message>
    <message>
        <source>No paired phones.</source>
        <translation>ペアリング済みの電話はありません。</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Paired</source>
        <translation>ペアリング日時</translation>
    </message>
    <message>
        <source>Fingerprint</source>
        <translation>フィンガープリント</translation>
    </message>
    <message>
        <source>Revoke &quot;%1&quot;? It will no longer be able to log in to this computer. [y/N] </source>
        <translation>「%1」を取り消しますか？このコンピュータにログインできなくなります。[y/N] </translation>
    </message>
    <message>
        <source>Nothing revoked.</source>
        <translation>何も取り消していません。</translation>
    </message>
    <message>
        <source>No session bus, so QuivraMac cannot be reached. Run quivractl in the same login session as the app.</source>
        <translation>セッションバスがないため QuivraMac に接続できません。アプリと同じログインセッションで quivractl を実行してください。</translation>
    </message>
    <message>
        <source>QuivraMac is not running. Start it with &quot;quivramac&quot; or &quot;systemctl --user start quivramac&quot;.</source>
        <translation>QuivraMac は実行されていません。「quivramac」または「systemctl --user start quivramac」で起動してください。</translation>
    </message>
    <message>
        <source>QuivraMac did not answer: %1</source>
        <translation>QuivraMac が応答しませんでした: %1</translation>
    </message>
    <message>
        <source>Show the server (and why it is not running), its address, pairing mode and the last paired phone.</source>
        <translation>サーバ (実行されていない場合はその理由)、アドレス、ペアリングモード、最後にペアリングした電話を表示します。</translation>
    </message>
    <message>
        <source>Start the Quivra server and wait until it accepts connections (at most 5 s).</source>
        <translation>Quivra サーバを起動し、接続を受け付けるまで待ちます (最大 5 秒)。</translation>
    </message>
    <message>
        <source>Stop the Quivra server.</source>
        <translation>Quivra サーバを停止します。</translation>
    </message>
    <message>
        <source>Switch pairing mode on, show the code and wait for a phone to pair.</source>
        <translation>ペアリングモードをオンにしてコードを表示し、電話のペアリングを待ちます。</translation>
    </message>
    <message>
        <source>Print the app&apos;s log.</source>
        <translation>アプリのログを出力します。</translation>
    </message>
    <message>
        <source>List the phones that can log in to this computer.</source>
        <translation>このコンピュータにログインできる電話を一覧表示します。</translation>
    </message>
    <message>
        <source>Take a phone&apos;s key away, by its name or fingerprint.</source>
        <translation>名前またはフィンガープリントを指定して、電話のキーを取り消します。</translation>
    </message>
    <message>
        <source>Show the app&apos;s panel (its setup window while that is open).</source>
        <translation>アプリのパネルを表示します (セットアップウインドウが開いている間はそれを表示)。</translation>
    </message>
    <message>
        <source>Usage: quivractl &lt;command&gt; [options]

Controls the running QuivraMac app.

Commands:
</source>
        <translation>使い方: quivractl &lt;command&gt; [options]

実行中の QuivraMac アプリを操作します。

コマンド:
</translation>
    </message>
    <message>
        <source>
Run &quot;quivractl &lt;command&gt; --help&quot; for a command&apos;s options.
</source>
        <translation>
コマンドのオプションは「quivractl &lt;command&gt; --help」で表示できます。
</translation>
    </message>
    <message>
        <source>Unknown command &quot;%1&quot;.
</source>
        <translation>不明なコマンド「%1」。
</translation>
    </message>
    <message>
        <source>Print the status report a phone receives.</source>
        <translation>電話が受け取る状態レポートを出力します。</translation>
    </message>
    <message>
        <source>Keep printing new log lines.</source>
        <translation>新しいログ行を出力し続けます。</translation>
    </message>
    <message>
        <source>Revoke without asking first.</source>
        <translation>確認せずに取り消します。</translation>
    </message>
    <message>
        <source>The phone&apos;s name or SHA256 fingerprint.</source>
        <translation>電話の名前または SHA256 フィンガープリント。</translation>
    </message>
    <message>
        <source>Which phone? Give its name or fingerprint (see quivractl devices).
</source>
        <translation>どの電話ですか？名前またはフィンガープリントを指定してください (quivractl devices を参照)。
</translation>
    </message>
    <message>
        <source>Unexpected argument &quot;%1&quot;.
</source>
        <translation>予期しない引数「%1」。
</translation>
    </message>
    <message>
        <source>QuivraMac did not answer.</source>
        <translation>QuivraMac が応答しませんでした。</translation>
    </message>
    <message>
        <source>QuivraMac is running without a display (as the user service, for example), so it has no window to show here. To use it on this desktop, stop that instance and start it again from here: systemctl --user stop quivramac &amp;&amp; quivramac</source>
        <translation>QuivraMac はディスプレイなしで実行されているため (ユーザサービスとしてなど)、ここに表示するウインドウがありません。このデスクトップで使うには、そのインスタンスを停止してここから起動し直してください: systemctl --user stop quivramac &amp;&amp; quivramac</translation>
    </message>
</context>
<context>
    <name>serverfailure</name>
    <message>
        <source>Eternal Terminal (etserver) is not installed</source>
        <translation>Eternal Terminal (etserver) がインストールされていません</translation>
    </message>
    <message>
        <source>etserver could not be started: %1</source>
        <translation>etserver を起動できませんでした: %1</translation>
    </message>
    <message>
        <source>Port %1 is in use</source>
        <translation>ポート %1 は使用中です</translation>
    </message>
    <message>
        <source>%1 belongs to another user</source>
        <translation>%1 は別のユーザのものです</translation>
    </message>
    <message>
        <source>etserver stopped unexpectedly (signal %1)</source>
        <translation>etserver が予期せず停止しました (シグナル %1)</translation>
    </message>
    <message>
        <source>etserver stopped unexpectedly (exit code %1)</source>
        <translation>etserver が予期せず停止しました (終了コード %1)</translation>
    </message>
    <message>
        <source>; QuivraMac gave up restarting it after %1 stops in %2 minutes</source>
        <translation>。%2 分間に %1 回停止したため、QuivraMac は再起動をあきらめました</translation>
    </message>
</context>
<context>
    <name>sshrepair</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 is a link; set the permissions of what it points to yourself</source>
        <translation>%1 はリンクです。リンク先のアクセス権はご自身で設定してください</translation>
    </message>
    <message>
        <source>%1 is not a regular file or folder; move it aside</source>
        <translation>%1 は通常のファイルでもフォルダでもありません。別の場所へ移動してください</translation>
    </message>
    <message>
        <source>Cannot open %1</source>
        <translation>%1 を開けません</translation>
    </message>
    <message>
        <source>Cannot inspect %1</source>
        <translation>%1 を調べられません</translation>
    </message>
    <message>
        <source>%1 belongs to someone else (uid %2); it is left as it is</source>
        <translation>%1 は別のユーザ (uid %2) のものです。そのままにします</translation>
    </message>
    <message>
        <source>Cannot change the permissions of %1</source>
        <translation>%1 のアクセス権を変更できません</translation>
    </message>
    <message>
        <source>Cannot create %1</source>
        <translation>%1 を作成できません</translation>
    </message>
    <message>
        <source>%1 is not a regular file; move it aside</source>
        <translation>%1 は通常のファイルではありません。別の場所へ移動してください</translation>
    </message>
</context>
<context>
    <name>wording</name>
    <message>
        <source>QuivraMac Setup</source>
        <translation>QuivraMac セットアップ</translation>
    </message>
    <message>
        <source>QuivraMac Settings</source>
        <translation>QuivraMac の設定</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>サーバ</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>コンピュータ</translation>
    </message>
    <message>
        <source>Your computer, ready for Quivra.</source>
        <translation>あなたのコンピュータを Quivra に。</translation>
    </message>
    <message>
        <source>This app runs quietly in your system tray,
keeping your computer connected to Quivra on iOS.</source>
        <translation>このアプリはシステムトレイで静かに動作し、
コンピュータを iOS の Quivra に接続し続けます。</translation>
    </message>
    <message>
        <source>QuivraMac creates a resilient connection
between your iPhone and this computer.</source>
        <translation>QuivraMac は iPhone とこのコンピュータの間に
途切れにくい接続を作ります。</translation>
    </message>
    <message>
        <source>Runs invisibly in the system tray</source>
        <translation>システムトレイで目立たずに動作</translation>
    </message>
    <message>
        <source>%1 is now connected to this computer.</source>
        <translation>%1 がこのコンピュータに接続されました。</translation>
    </message>
    <message>
        <source>Checking your computer...</source>
        <translation>コンピュータを確認しています…</translation>
    </message>
    <message>
        <source>Your computer accepts secure connections</source>
        <translation>コンピュータは安全な接続を受け付けます</translation>
    </message>
    <message>
        <source>Your computer is on &quot;%1&quot;. Make sure your iPhone is on the same network.</source>
        <translation>コンピュータは「%1」に接続しています。iPhone が同じネットワークにあることを確認してください。</translation>
    </message>
    <message>
        <source>Your iPhone couldn&apos;t reach this computer.</source>
        <translation>iPhone からこのコンピュータに接続できませんでした。</translation>
    </message>
    <message>
        <source>SSH Server</source>
        <translation>SSH サーバ</translation>
    </message>
    <message>
        <source>SSH server is installed but not running. Start its service (sshd).</source>
        <translation>SSH サーバはインストールされていますが実行されていません。サービス (sshd) を起動してください。</translation>
    </message>
    <message>
        <source>SSH server is installed but not running. Start it with:</source>
        <translation>SSH サーバはインストールされていますが実行されていません。次のコマンドで起動します:</translation>
    </message>
    <message>
        <source>SSH server is not installed. Install it with:</source>
        <translation>SSH サーバがインストールされていません。次のコマンドでインストールします:</translation>
    </message>
    <message>
        <source>SSH server is not installed. Install and start OpenSSH&apos;s sshd.</source>
        <translation>SSH サーバがインストールされていません。OpenSSH の sshd をインストールして起動してください。</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>セットアップ</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Mac</source>
        <translation>Mac</translation>
    </message>
    <message>
        <source>Your Mac, ready for Quivra.</source>
        <translation>あなたの Mac を Quivra に。</translation>
    </message>
    <message>
        <source>This app runs quietly in your menu bar,
keeping your Mac connected to Quivra on iOS.</source>
        <translation>このアプリはメニューバーで静かに動作し、
Mac を iOS の Quivra に接続し続けます。</translation>
    </message>
    <message>
        <source>QuivraMac creates a resilient connection
between your iPhone and this Mac.</source>
        <translation>QuivraMac は iPhone とこの Mac の間に
途切れにくい接続を作ります。</translation>
    </message>
    <message>
        <source>Runs invisibly in the menu bar</source>
        <translation>メニューバーで目立たずに動作</translation>
    </message>
    <message>
        <source>%1 is now connected to this Mac.</source>
        <translation>%1 がこの Mac に接続されました。</translation>
    </message>
    <message>
        <source>Checking your Mac...</source>
        <translation>Mac を確認しています…</translation>
    </message>
    <message>
        <source>Your Mac accepts secure connections</source>
        <translation>Mac は安全な接続を受け付けます</translation>
    </message>
    <message>
        <source>Your Mac is on &quot;%1&quot;. Make sure your iPhone is on the same network.</source>
        <translation>Mac は「%1」に接続しています。iPhone が同じネットワークにあることを確認してください。</translation>
    </message>
    <message>
        <source>Your iPhone couldn&apos;t reach this Mac.</source>
        <translation>iPhone からこの Mac に接続できませんでした。</translation>
    </message>
    <message>
        <source>Remote Login</source>
        <translation>リモートログイン</translation>
    </message>
    <message>
        <source>Remote Login is disabled</source>
        <translation>リモートログインがオフになっています</translation>
    </message>
</context>
</TS>
