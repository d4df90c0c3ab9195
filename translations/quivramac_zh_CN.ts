<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>AskClaudeCard</name>
    <message>
        <source>Ask Claude Code</source>
        <translation>询问 Claude Code</translation>
    </message>
    <message>
        <source>Copied!</source>
        <translation>已复制！</translation>
    </message>
    <message>
        <source>Copy to Clipboard</source>
        <translation>复制到剪贴板</translation>
    </message>
</context>
<context>
    <name>CommandField</name>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
</context>
<context>
    <name>DeviceRow</name>
    <message>
        <source>Revoke...</source>
        <translation>撤销…</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Paired %1</source>
        <translation>配对于 %1</translation>
    </message>
    <message>
        <source>Revoke “%1”? It will no longer be able to log in to this computer.</source>
        <translation>撤销“%1”？它将无法再登录这台电脑。</translation>
    </message>
    <message>
        <source>Revoke</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>DevicesTab</name>
    <message>
        <source>Paired Devices</source>
        <translation>已配对的设备</translation>
    </message>
    <message>
        <source>No phone can log in with a paired key yet.</source>
        <translation>还没有手机可以用已配对的密钥登录。</translation>
    </message>
</context>
<context>
    <name>ExplanationStep</name>
    <message>
        <source>A bridge that never drops.</source>
        <translation>永不掉线的桥梁。</translation>
    </message>
    <message>
        <source>Survives WiFi switches and sleep</source>
        <translation>切换 Wi-Fi 或睡眠也不断线</translation>
    </message>
    <message>
        <source>Reconnects automatically</source>
        <translation>自动重新连接</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>继续</translation>
    </message>
</context>
<context>
    <name>GeneralTab</name>
    <message>
        <source>Server</source>
        <translation>服务器</translation>
    </message>
    <message>
        <source>Start server automatically</source>
        <translation>自动启动服务器</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>端口</translation>
    </message>
    <message>
        <source>Local IP</source>
        <translation>本地 IP</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>运行中</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>已停止</translation>
    </message>
    <message>
        <source>Uptime</source>
        <translation>运行时间</translation>
    </message>
    <message>
        <source>Stop Server</source>
        <translation>停止服务器</translation>
    </message>
    <message>
        <source>Start Server</source>
        <translation>启动服务器</translation>
    </message>
    <message>
        <source>Server running</source>
        <translation>服务器正在运行</translation>
    </message>
    <message>
        <source>Server stopped</source>
        <translation>服务器已停止</translation>
    </message>
</context>
<context>
    <name>HeaderSection</name>
    <message>
        <source>Port %1</source>
        <translation>端口 %1</translation>
    </message>
    <message>
        <source>Server off</source>
        <translation>服务器已关闭</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>服务器</translation>
    </message>
    <message>
        <source>Server running on port %1</source>
        <translation>服务器正在端口 %1 上运行</translation>
    </message>
</context>
<context>
    <name>InstallEtSheet</name>
    <message>
        <source>Install Eternal Terminal</source>
        <translation>安装 Eternal Terminal</translation>
    </message>
    <message>
        <source>This copy of QuivraMac was built without its own Eternal Terminal server, which keeps your iPhone&apos;s sessions alive. Install Eternal Terminal once: QuivraMac finds its etserver on your PATH.</source>
        <translation>此 QuivraMac 构建时未包含自带的 Eternal Terminal 服务器，而它负责保持 iPhone 会话不断开。请安装一次 Eternal Terminal：QuivraMac 会在 PATH 中找到它的 etserver。</translation>
    </message>
    <message>
        <source>1. Run this in a terminal:</source>
        <translation>1. 在终端中运行：</translation>
    </message>
    <message>
        <source>1. Build and install it from source, as the download page describes.</source>
        <translation>1. 按下载页面的说明从源代码构建并安装。</translation>
    </message>
    <message>
        <source>2. Turn on the server with the switch in the QuivraMac panel.</source>
        <translation>2. 用 QuivraMac 面板中的开关打开服务器。</translation>
    </message>
    <message>
        <source>Open Download Page</source>
        <translation>打开下载页面</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
</context>
<context>
    <name>InstallLink</name>
    <message>
        <source>How to install Eternal Terminal...</source>
        <translation>如何安装 Eternal Terminal…</translation>
    </message>
</context>
<context>
    <name>LogsTab</name>
    <message>
        <source>Server Logs</source>
        <translation>服务器日志</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>No logs yet...</source>
        <translation>暂无日志…</translation>
    </message>
</context>
<context>
    <name>MenuBarView</name>
    <message>
        <source>How to install Eternal Terminal...</source>
        <translation>如何安装 Eternal Terminal…</translation>
    </message>
    <message>
        <source>Last paired: %1</source>
        <translation>上次配对：%1</translation>
    </message>
    <message>
        <source>Setup Assistant...</source>
        <translation>设置助理…</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>设置…</translation>
    </message>
    <message>
        <source>Quit QuivraMac</source>
        <translation>退出 QuivraMac</translation>
    </message>
</context>
<context>
    <name>OnboardingFlow</name>
    <message>
        <source>The code entered on your iPhone didn&apos;t match.</source>
        <translation>iPhone 上输入的代码不匹配。</translation>
    </message>
    <message>
        <source>No device connected within the time limit.</source>
        <translation>在时限内没有设备连接。</translation>
    </message>
</context>
<context>
    <name>PairingSection</name>
    <message>
        <source>Pair New Device</source>
        <translation>配对新设备</translation>
    </message>
    <message>
        <source>Pairing Mode</source>
        <translation>配对模式</translation>
    </message>
    <message>
        <source>Enter this code in Quivra on your iPhone</source>
        <translation>在 iPhone 上的 Quivra 中输入此代码</translation>
    </message>
    <message>
        <source>Stop Pairing</source>
        <translation>停止配对</translation>
    </message>
    <message>
        <source>Time left: %1</source>
        <translation>剩余时间：%1</translation>
    </message>
    <message>
        <source>Pairing code %1</source>
        <translation>配对码 %1</translation>
    </message>
</context>
<context>
    <name>PairingSession</name>
    <message>
        <source>Someone is guessing the code from %1</source>
        <translation>有人正在从 %1 猜测代码</translation>
    </message>
    <message numerus="yes">
        <source>Someone is guessing the code from %1 and %n other address(es)</source>
        <translation>
            <numerusform>有人正在从 %1 和另外 %n 个地址猜测代码</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PairingStep</name>
    <message>
        <source>Open Quivra on your iPhone</source>
        <translation>在 iPhone 上打开 Quivra</translation>
    </message>
    <message>
        <source>Tap &quot;Add Mac&quot;</source>
        <translation>轻点“Add Mac”</translation>
    </message>
    <message>
        <source>Enter this code:</source>
        <translation>输入此代码：</translation>
    </message>
    <message>
        <source>Expires in %1</source>
        <translation>%1 后过期</translation>
    </message>
    <message>
        <source>Having trouble?</source>
        <translation>遇到问题？</translation>
    </message>
    <message>
        <source>Try manual setup</source>
        <translation>尝试手动设置</translation>
    </message>
    <message>
        <source>Exchanging keys...</source>
        <translation>正在交换密钥…</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>重试</translation>
    </message>
    <message>
        <source>Add this computer by hand</source>
        <translation>手动添加这台电脑</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Pairing code %1</source>
        <translation>配对码 %1</translation>
    </message>
</context>
<context>
    <name>PhoneService</name>
    <message>
        <source>Port %1 is in use, so phones cannot pair</source>
        <translation>端口 %1 已被占用，因此手机无法配对</translation>
    </message>
    <message>
        <source>Phones cannot pair: %1</source>
        <translation>手机无法配对：%1</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>General</source>
        <translation>通用</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>日志</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>设备</translation>
    </message>
</context>
<context>
    <name>SetupWindow</name>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>SuccessStep</name>
    <message>
        <source>QuivraMac lives here</source>
        <translation>QuivraMac 在这里</translation>
    </message>
    <message>
        <source>You&apos;re all set!</source>
        <translation>一切就绪！</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>登录时启动</translation>
    </message>
    <message>
        <source>Recommended</source>
        <translation>推荐</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
</context>
<context>
    <name>SystemCheck</name>
    <message>
        <source>Looking good!</source>
        <translation>一切正常！</translation>
    </message>
    <message>
        <source>Almost there...</source>
        <translation>就快好了…</translation>
    </message>
    <message>
        <source>SSH Keys</source>
        <translation>SSH 密钥</translation>
    </message>
    <message>
        <source>Ready to authenticate</source>
        <translation>已准备好认证</translation>
    </message>
    <message>
        <source>Quivra Server</source>
        <translation>Quivra 服务器</translation>
    </message>
    <message>
        <source>Running on port %1</source>
        <translation>正在端口 %1 上运行</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>网络</translation>
    </message>
    <message>
        <source>Connected at %1</source>
        <translation>已连接，地址 %1</translation>
    </message>
    <message>
        <source>~/.ssh directory doesn&apos;t exist</source>
        <translation>~/.ssh 文件夹不存在</translation>
    </message>
    <message>
        <source>~/.ssh has wrong permissions</source>
        <translation>~/.ssh 的权限不正确</translation>
    </message>
    <message>
        <source>authorized_keys has wrong permissions</source>
        <translation>authorized_keys 的权限不正确</translation>
    </message>
    <message>
        <source>Server couldn&apos;t start</source>
        <translation>服务器无法启动</translation>
    </message>
    <message>
        <source>Eternal Terminal is not installed</source>
        <translation>未安装 Eternal Terminal</translation>
    </message>
    <message>
        <source>Port %1 is in use</source>
        <translation>端口 %1 已被占用</translation>
    </message>
    <message>
        <source>No network connection</source>
        <translation>没有网络连接</translation>
    </message>
</context>
<context>
    <name>SystemCheckStep</name>
    <message>
        <source>Fix</source>
        <translation>修复</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>重试</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>继续</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>等待中</translation>
    </message>
    <message>
        <source>checking</source>
        <translation>正在检查</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>失败</translation>
    </message>
</context>
<context>
    <name>TrayIcon</name>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Pair New Device</source>
        <translation>配对新设备</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>设置…</translation>
    </message>
    <message>
        <source>Quit QuivraMac</source>
        <translation>退出 QuivraMac</translation>
    </message>
    <message>
        <source>Server running on port %1</source>
        <translation>服务器正在端口 %1 上运行</translation>
    </message>
    <message>
        <source>Server not running: %1</source>
        <translation>服务器未运行：%1</translation>
    </message>
    <message>
        <source>Server off</source>
        <translation>服务器已关闭</translation>
    </message>
    <message>
        <source>Setup is not finished yet</source>
        <translation>设置尚未完成</translation>
    </message>
    <message>
        <source>Pairing: the code expires in %1</source>
        <translation>配对：代码将在 %1 后过期</translation>
    </message>
</context>
<context>
    <name>UiController</name>
    <message>
        <source>Address: %1
User: %2
SSH port: %3
Eternal Terminal port: %4</source>
        <translation>地址：%1
用户：%2
SSH 端口：%3
Eternal Terminal 端口：%4</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; is connecting...</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; 正在连接…</translation>
    </message>
</context>
<context>
    <name>WelcomeStep</name>
    <message>
        <source>Continue</source>
        <translation>继续</translation>
    </message>
</context>
<context>
    <name>formats</name>
    <message>
        <source>%1h %2m %3s</source>
        <translation>%1小时%2分%3秒</translation>
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
        <translation>%1小时%2分%3秒</translation>
    </message>
    <message>
        <source>The status endpoint did not answer (%1); is the server running?</source>
        <translation>状态端点没有响应（%1）；服务器在运行吗？</translation>
    </message>
    <message>
        <source>Server:       %1</source>
        <translation>服务器：     %1</translation>
    </message>
    <message>
        <source>running, up %1</source>
        <translation>运行中，已运行 %1</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>已停止</translation>
    </message>
    <message>
        <source>Reason:       %1</source>
        <translation>原因：       %1</translation>
    </message>
    <message>
        <source>Port:         %1</source>
        <translation>端口：       %1</translation>
    </message>
    <message>
        <source>Address:      %1</source>
        <translation>地址：       %1</translation>
    </message>
    <message>
        <source>Pairing:      %1</source>
        <translation>配对：       %1</translation>
    </message>
    <message>
        <source>on</source>
        <translation>开</translation>
    </message>
    <message>
        <source>off</source>
        <translation>关</translation>
    </message>
    <message>
        <source>Last paired:  %1</source>
        <translation>上次配对： %1</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Server running, accepting connections on port %1</source>
        <translation>服务器正在运行，在端口 %1 上接受连接</translation>
    </message>
    <message>
        <source>The server did not start: %1</source>
        <translation>服务器没有启动：%1</translation>
    </message>
    <message>
        <source>it stopped; see quivractl logs</source>
        <translation>它已停止；请查看 quivractl logs</translation>
    </message>
    <message>
        <source>The server is running but port %1 did not accept connections within %2 s; see quivractl logs</source>
        <translation>服务器正在运行，但端口 %1 在 %2 秒内没有接受连接；请查看 quivractl logs</translation>
    </message>
    <message>
        <source>The server did not stop within %1 s; see quivractl logs</source>
        <translation>服务器没有在 %1 秒内停止；请查看 quivractl logs</translation>
    </message>
    <message>
        <source>Server stopped</source>
        <translation>服务器已停止</translation>
    </message>
    <message>
        <source>The server is not running, so no phone can pair. Start it with: quivractl start</source>
        <translation>服务器未运行，因此无法配对手机。请用以下命令启动：quivractl start</translation>
    </message>
    <message>
        <source>The server is not running (%1), so no phone can pair.</source>
        <translation>服务器未运行（%1），因此无法配对手机。</translation>
    </message>
    <message>
        <source>Pairing code: %1</source>
        <translation>配对代码：%1</translation>
    </message>
    <message>
        <source>Address: %1</source>
        <translation>地址：%1</translation>
    </message>
    <message>
        <source>Open Quivra on your iPhone and enter the code. Ctrl-C cancels.</source>
        <translation>在 iPhone 上打开 Quivra 并输入代码。按 Ctrl-C 取消。</translation>
    </message>
    <message>
        <source>Expires in %1</source>
        <translation>%1 后过期</translation>
    </message>
    <message>
        <source>Paired with %1</source>
        <translation>已与 %1 配对</translation>
    </message>
    <message>
        <source>The pairing code expired.</source>
        <translation>配对代码已过期。</translation>
    </message>
    <message>
        <source>Pairing mode was switched off.</source>
        <translation>配对模式已关闭。</translation>
    </message>
    <message>
        <source>Pairing cancelled.</source>
        <translation>配对已取消。</translation>
    </message>
    <message>
        <source>No paired phones.</source>
        <translation>没有已配对的手机。</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Paired</source>
        <translation>配对时间</translation>
    </message>
    <message>
        <source>Fingerprint</source>
        <translation>指纹</translation>
    </message>
    <message>
        <source>Revoke &quot;%1&quot;? It will no longer be able to log in to this computer. [y/N] </source>
        <translation>撤销“%1”？它将无法再登录这台电脑。[y/N] </translation>
    </message>
    <message>
        <source>Nothing revoked.</source>
        <translation>未撤销任何设备。</translation>
    </message>
    <message>
        <source>No session bus, so QuivraMac cannot be reached. Run quivractl in the same login session as the app.</source>
        <translation>没有会话总线，无法连接 QuivraMac。请在与应用相同的登录会话中运行 quivractl。</translation>
    </message>
    <message>
        <source>QuivraMac is not running. Start it with &quot;quivramac&quot; or &quot;systemctl --user start quivramac&quot;.</source>
        <translation>QuivraMac 未运行。请用“quivramac”或“systemctl --user start quivramac”启动。</translation>
    </message>
    <message>
        <source>QuivraMac did not answer: %1</source>
        <translation>QuivraMac 没有响应：%1</translation>
    </message>
    <message>
        <source>Show the server (and why it is not running), its address, pairing mode and the last paired phone.</source>
        <translation>显示服务器（及其未运行的原因）、地址、配对模式和上次配对的手机。</translation>
    </message>
    <message>
        <source>Start the Quivra server and wait until it accepts connections (at most 5 s).</source>
        <translation>启动 Quivra 服务器并等待其接受连接（最多 5 秒）。</translation>
    </message>
    <message>
        <source>Stop the Quivra server.</source>
        <translation>停止 Quivra 服务器。</translation>
    </message>
    <message>
        <source>Switch pairing mode on, show the code and wait for a phone to pair.</source>
        <translation>打开配对模式，显示代码并等待手机配对。</translation>
    </message>
    <message>
        <source>Print the app&apos;s log.</source>
        <translation>输出应用的日志。</translation>
    </message>
    <message>
        <source>List the phones that can log in to this computer.</source>
        <translation>列出可以登录这台电脑的手机。</translation>
    </message>
    <message>
        <source>Take a phone&apos;s key away, by its name or fingerprint.</source>
        <translation>按名称或指纹移除手机的密钥。</translation>
    </message>
    <message>
        <source>Show the app&apos;s panel (its setup window while that is open).</source>
        <translation>显示应用的面板（设置窗口打开时显示设置窗口）。</translation>
    </message>
    <message>
        <source>Usage: quivractl &lt;command&gt; [options]

Controls the running QuivraMac app.

Commands:
</source>
        <translation>用法：quivractl &lt;command&gt; [options]

控制正在运行的 QuivraMac 应用。

命令：
</translation>
    </message>
    <message>
        <source>
Run &quot;quivractl &lt;command&gt; --help&quot; for a command&apos;s options.
</source>
        <translation>
运行“quivractl &lt;command&gt; --help”查看命令的选项。
</translation>
    </message>
    <message>
        <source>Unknown command &quot;%1&quot;.
</source>
        <translation>未知命令“%1”。
</translation>
    </message>
    <message>
        <source>Print the status report a phone receives.</source>
        <translation>输出手机收到的状态报告。</translation>
    </message>
    <message>
        <source>Keep printing new log lines.</source>
        <translation>持续输出新的日志行。</translation>
    </message>
    <message>
        <source>Revoke without asking first.</source>
        <translation>不经确认直接撤销。</translation>
    </message>
    <message>
        <source>The phone&apos;s name or SHA256 fingerprint.</source>
        <translation>手机的名称或 SHA256 指纹。</translation>
    </message>
    <message>
        <source>Which phone? Give its name or fingerprint (see quivractl devices).
</source>
        <translation>哪部手机？请给出其名称或指纹（见 quivractl devices）。
</translation>
    </message>
    <message>
        <source>Unexpected argument &quot;%1&quot;.
</source>
        <translation>意外的参数“%1”。
</translation>
    </message>
    <message>
        <source>QuivraMac did not answer.</source>
        <translation>QuivraMac 没有响应。</translation>
    </message>
    <message>
        <source>QuivraMac is running without a display (as the user service, for example), so it has no window to show here. To use it on this desktop, stop that instance and start it again from here: systemctl --user stop quivramac &amp;&amp; quivramac</source>
        <translation>QuivraMac 正在无显示器的情况下运行（例如作为用户服务），因此这里没有可显示的窗口。要在此桌面上使用它，请停止该实例并从这里重新启动：systemctl --user stop quivramac &amp;&amp; quivramac</translation>
    </message>
</context>
<context>
    <name>serverfailure</name>
    <message>
        <source>Eternal Terminal (etserver) is not installed</source>
        <translation>未安装 Eternal Terminal（etserver）</translation>
    </message>
    <message>
        <source>etserver could not be started: %1</source>
        <translation>无法启动 etserver：%1</translation>
    </message>
    <message>
        <source>Port %1 is in use</source>
        <translation>端口 %1 已被占用</translation>
    </message>
    <message>
        <source>%1 belongs to another user</source>
        <translation>%1 属于其他用户</translation>
    </message>
    <message>
        <source>etserver stopped unexpectedly (signal %1)</source>
        <translation>etserver 意外停止（信号 %1）</translation>
    </message>
    <message>
        <source>etserver stopped unexpectedly (exit code %1)</source>
        <translation>etserver 意外停止（退出代码 %1）</translation>
    </message>
    <message>
        <source>; QuivraMac gave up restarting it after %1 stops in %2 minutes</source>
        <translation>；QuivraMac 在 %2 分钟内停止 %1 次后已放弃重新启动</translation>
    </message>
</context>
<context>
    <name>sshrepair</name>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1 is a link; set the permissions of what it points to yourself</source>
        <translation>%1 是链接；请自行设置其指向目标的权限</translation>
    </message>
    <message>
        <source>%1 is not a regular file or folder; move it aside</source>
        <translation>%1 既不是普通文件也不是文件夹；请将其移走</translation>
    </message>
    <message>
        <source>Cannot open %1</source>
        <translation>无法打开 %1</translation>
    </message>
    <message>
        <source>Cannot inspect %1</source>
        <translation>无法检查 %1</translation>
    </message>
    <message>
        <source>%1 belongs to someone else (uid %2); it is left as it is</source>
        <translation>%1 属于其他人（uid %2）；保持原样</translation>
    </message>
    <message>
        <source>Cannot change the permissions of %1</source>
        <translation>无法更改 %1 的权限</translation>
    </message>
    <message>
        <source>Cannot create %1</source>
        <translation>无法创建 %1</translation>
    </message>
    <message>
        <source>%1 is not a regular file; move it aside</source>
        <translation>%1 不是普通文件；请将其移走</translation>
    </message>
</context>
<context>
    <name>wording</name>
    <message>
        <source>QuivraMac Setup</source>
        <translation>QuivraMac 设置向导</translation>
    </message>
    <message>
        <source>QuivraMac Settings</source>
        <translation>QuivraMac 设置</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>服务器</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>电脑</translation>
    </message>
    <message>
        <source>Your computer, ready for Quivra.</source>
        <translation>你的电脑，已为 Quivra 准备就绪。</translation>
    </message>
    <message>
        <source>This app runs quietly in your system tray,
keeping your computer connected to Quivra on iOS.</source>
        <translation>此应用在系统托盘中安静运行，
让你的电脑与 iOS 上的 Quivra 保持连接。</translation>
    </message>
    <message>
        <source>QuivraMac creates a resilient connection
between your iPhone and this computer.</source>
        <translation>QuivraMac 在你的 iPhone 和这台电脑之间
建立稳定的连接。</translation>
    </message>
    <message>
        <source>Runs invisibly in the system tray</source>
        <translation>在系统托盘中隐形运行</translation>
    </message>
    <message>
        <source>%1 is now connected to this computer.</source>
        <translation>%1 现已连接到这台电脑。</translation>
    </message>
    <message>
        <source>Checking your computer...</source>
        <translation>正在检查你的电脑…</translation>
    </message>
    <message>
        <source>Your computer accepts secure connections</source>
        <translation>你的电脑接受安全连接</translation>
    </message>
    <message>
        <source>Your computer is on &quot;%1&quot;. Make sure your iPhone is on the same network.</source>
        <translation>你的电脑在“%1”上。请确保你的 iPhone 在同一网络中。</translation>
    </message>
    <message>
        <source>Your iPhone couldn&apos;t reach this computer.</source>
        <translation>你的 iPhone 无法连接到这台电脑。</translation>
    </message>
    <message>
        <source>SSH Server</source>
        <translation>SSH 服务器</translation>
    </message>
    <message>
        <source>SSH server is installed but not running. Start its service (sshd).</source>
        <translation>SSH 服务器已安装但未运行。请启动其服务（sshd）。</translation>
    </message>
    <message>
        <source>SSH server is installed but not running. Start it with:</source>
        <translation>SSH 服务器已安装但未运行。请用以下命令启动：</translation>
    </message>
    <message>
        <source>SSH server is not installed. Install it with:</source>
        <translation>SSH 服务器未安装。请用以下命令安装：</translation>
    </message>
    <message>
        <source>SSH server is not installed. Install and start OpenSSH&apos;s sshd.</source>
        <translation>SSH 服务器未安装。请安装并启动 OpenSSH 的 sshd。</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>设置向导</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Mac</source>
        <translation>Mac</translation>
    </message>
    <message>
        <source>Your Mac, ready for Quivra.</source>
        <translation>你的 Mac，已为 Quivra 准备就绪。</translation>
    </message>
    <message>
        <source>This app runs quietly in your menu bar,
keeping your Mac connected to Quivra on iOS.</source>
        <translation>此应用在菜单栏中安静运行，
让你的 Mac 与 iOS 上的 Quivra 保持连接。</translation>
    </message>
    <message>
        <source>QuivraMac creates a resilient connection
between your iPhone and this Mac.</source>
        <translation>QuivraMac 在你的 iPhone 和这台 Mac 之间
建立稳定的连接。</translation>
    </message>
    <message>
        <source>Runs invisibly in the menu bar</source>
        <translation>在菜单栏中隐形运行</translation>
    </message>
    <message>
        <source>%1 is now connected to this Mac.</source>
        <translation>%1 现已连接到这台 Mac。</translation>
    </message>
    <message>
        <source>Checking your Mac...</source>
        <translation>正在检查你的 Mac…</translation>
    </message>
    <message>
        <source>Your Mac accepts secure connections</source>
        <translation>你的 Mac 接受安全连接</translation>
    </message>
    <message>
        <source>Your Mac is on &quot;%1&quot;. Make sure your iPhone is on the same network.</source>
        <translation>你的 Mac 在“%1”上。请确保你的 iPhone 在同一网络中。</translation>
    </message>
    <message>
        <source>Your iPhone couldn&apos;t reach this Mac.</source>
        <translation>你的 iPhone 无法连接到这台 Mac。</translation>
    </message>
    <message>
        <source>Remote Login</source>
        <translation>远程登录</translation>
    </message>
    <message>
        <source>Remote Login is disabled</source>
        <translation>远程登录已停用</translation>
    </message>
</context>
</TS>
