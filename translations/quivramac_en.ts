<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>AskClaudeCard</name>
    <message>
        <source>Ask Claude Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copied!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy to Clipboard</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CommandField</name>
    <message>
        <source>Copy</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DeviceRow</name>
    <message>
        <source>Revoke...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paired %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Revoke “%1”? It will no longer be able to log in to this computer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Revoke</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DevicesTab</name>
    <message>
        <source>Paired Devices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No phone can log in with a paired key yet.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ExplanationStep</name>
    <message>
        <source>A bridge that never drops.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Survives WiFi switches and sleep</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reconnects automatically</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Continue</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GeneralTab</name>
    <message>
        <source>Server</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start server automatically</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Port</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Local IP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Running</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Uptime</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop Server</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start Server</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Server running</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Server stopped</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HeaderSection</name>
    <message>
        <source>Port %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Server off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Server</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Server running on port %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>InstallEtSheet</name>
    <message>
        <source>Install Eternal Terminal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This copy of QuivraMac was built without its own Eternal Terminal server, which keeps your iPhone&apos;s sessions alive. Install Eternal Terminal once: QuivraMac finds its etserver on your PATH.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1. Run this in a terminal:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1. Build and install it from source, as the download page describes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2. Turn on the server with the switch in the QuivraMac panel.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Download Page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Done</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>InstallLink</name>
    <message>
        <source>How to install Eternal Terminal...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LogsTab</name>
    <message>
        <source>Server Logs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No logs yet...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MenuBarView</name>
    <message>
        <source>How to install Eternal Terminal...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last paired: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Setup Assistant...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit QuivraMac</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OnboardingFlow</name>
    <message>
        <source>The code entered on your iPhone didn&apos;t match.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No device connected within the time limit.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PairingSection</name>
    <message>
        <source>Pair New Device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pairing Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter this code in Quivra on your iPhone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop Pairing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time left: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pairing code %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PairingSession</name>
    <message>
        <source>Someone is guessing the code from %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Someone is guessing the code from %1 and %n other address(es)</source>
        <translation>
            <numerusform>Someone is guessing the code from %1 and %n other address</numerusform>
            <numerusform>Someone is guessing the code from %1 and %n other addresses</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PairingStep</name>
    <message>
        <source>Open Quivra on your iPhone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tap &quot;Add Mac&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter this code:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Expires in %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Having trouble?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Try manual setup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exchanging keys...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add this computer by hand</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pairing code %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PhoneService</name>
    <message>
        <source>Port %1 is in use, so phones cannot pair</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Phones cannot pair: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>General</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Logs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Devices</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SetupWindow</name>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SuccessStep</name>
    <message>
        <source>QuivraMac lives here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You&apos;re all set!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recommended</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Done</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SystemCheck</name>
    <message>
        <source>Looking good!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Almost there...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SSH Keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ready to authenticate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quivra Server</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Running on port %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Network</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connected at %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>~/.ssh directory doesn&apos;t exist</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>~/.ssh has wrong permissions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>authorized_keys has wrong permissions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Server couldn&apos;t start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Eternal Terminal is not installed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Port %1 is in use</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No network connection</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SystemCheckStep</name>
    <message>
        <source>Fix</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Continue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>waiting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>checking</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>failed</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TrayIcon</name>
    <message>
        <source>Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pair New Device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit QuivraMac</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Server running on port %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Server not running: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Server off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Setup is not finished yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pairing: the code expires in %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UiController</name>
    <message>
        <source>Address: %1
User: %2
SSH port: %3
Eternal Terminal port: %4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; is connecting...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WelcomeStep</name>
    <message>
        <source>Continue</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>formats</name>
    <message>
        <source>%1h %2m %3s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1m %2s</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>quivractl</name>
    <message>
        <source>%1h %2m %3s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The status endpoint did not answer (%1); is the server running?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Server:       %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>running, up %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>stopped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reason:       %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Port:         %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Address:      %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pairing:      %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last paired:  %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Server running, accepting connections on port %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server did not start: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it stopped; see quivractl logs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server is running but port %1 did not accept connections within %2 s; see quivractl logs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server did not stop within %1 s; see quivractl logs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Server stopped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server is not running, so no phone can pair. Start it with: quivractl start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server is not running (%1), so no phone can pair.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pairing code: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Address: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Quivra on your iPhone and enter the code. Ctrl-C cancels.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Expires in %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paired with %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The pairing code expired.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pairing mode was switched off.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pairing cancelled.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No paired phones.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paired</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fingerprint</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Revoke &quot;%1&quot;? It will no longer be able to log in to this computer. [y/N] </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing revoked.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No session bus, so QuivraMac cannot be reached. Run quivractl in the same login session as the app.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>QuivraMac is not running. Start it with &quot;quivramac&quot; or &quot;systemctl --user start quivramac&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>QuivraMac did not answer: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the server (and why it is not running), its address, pairing mode and the last paired phone.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start the Quivra server and wait until it accepts connections (at most 5 s).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop the Quivra server.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch pairing mode on, show the code and wait for a phone to pair.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print the app&apos;s log.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List the phones that can log in to this computer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take a phone&apos;s key away, by its name or fingerprint.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the app&apos;s panel (its setup window while that is open).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Usage: quivractl &lt;command&gt; [options]

Controls the running QuivraMac app.

Commands:
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>
Run &quot;quivractl &lt;command&gt; --help&quot; for a command&apos;s options.
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown command &quot;%1&quot;.
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print the status report a phone receives.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep printing new log lines.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Revoke without asking first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The phone&apos;s name or SHA256 fingerprint.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Which phone? Give its name or fingerprint (see quivractl devices).
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unexpected argument &quot;%1&quot;.
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>QuivraMac did not answer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>QuivraMac is running without a display (as the user service, for example), so it has no window to show here. To use it on this desktop, stop that instance and start it again from here: systemctl --user stop quivramac &amp;&amp; quivramac</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>serverfailure</name>
    <message>
        <source>Eternal Terminal (etserver) is not installed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>etserver could not be started: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Port %1 is in use</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 belongs to another user</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>etserver stopped unexpectedly (signal %1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>etserver stopped unexpectedly (exit code %1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>; QuivraMac gave up restarting it after %1 stops in %2 minutes</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>sshrepair</name>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is a link; set the permissions of what it points to yourself</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not a regular file or folder; move it aside</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot open %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot inspect %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 belongs to someone else (uid %2); it is left as it is</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot change the permissions of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot create %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not a regular file; move it aside</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>wording</name>
    <message>
        <source>QuivraMac Setup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>QuivraMac Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Server</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Computer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your computer, ready for Quivra.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This app runs quietly in your system tray,
keeping your computer connected to Quivra on iOS.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>QuivraMac creates a resilient connection
between your iPhone and this computer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Runs invisibly in the system tray</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is now connected to this computer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Checking your computer...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your computer accepts secure connections</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your computer is on &quot;%1&quot;. Make sure your iPhone is on the same network.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your iPhone couldn&apos;t reach this computer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SSH Server</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SSH server is installed but not running. Start its service (sshd).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SSH server is installed but not running. Start it with:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SSH server is not installed. Install it with:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SSH server is not installed. Install and start OpenSSH&apos;s sshd.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Setup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mac</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your Mac, ready for Quivra.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This app runs quietly in your menu bar,
keeping your Mac connected to Quivra on iOS.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>QuivraMac creates a resilient connection
between your iPhone and this Mac.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Runs invisibly in the menu bar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is now connected to this Mac.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Checking your Mac...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your Mac accepts secure connections</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your Mac is on &quot;%1&quot;. Make sure your iPhone is on the same network.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your iPhone couldn&apos;t reach this Mac.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remote Login</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remote Login is disabled</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
