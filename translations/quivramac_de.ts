<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>AskClaudeCard</name>
    <message>
        <source>Ask Claude Code</source>
        <translation>Claude Code fragen</translation>
    </message>
    <message>
        <source>Copied!</source>
        <translation>Kopiert!</translation>
    </message>
    <message>
        <source>Copy to Clipboard</source>
        <translation>In die Zwischenablage kopieren</translation>
    </message>
</context>
<context>
    <name>CommandField</name>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
</context>
<context>
    <name>DeviceRow</name>
    <message>
        <source>Revoke...</source>
        <translation>Widerrufen …</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Paired %1</source>
        <translation>Gekoppelt am %1</translation>
    </message>
    <message>
        <source>Revoke “%1”? It will no longer be able to log in to this computer.</source>
        <translation>„%1“ widerrufen? Das Gerät kann sich dann nicht mehr an diesem Computer anmelden.</translation>
    </message>
    <message>
        <source>Revoke</source>
        <translation>Widerrufen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>DevicesTab</name>
    <message>
        <source>Paired Devices</source>
        <translation>Gekoppelte Geräte</translation>
    </message>
    <message>
        <source>No phone can log in with a paired key yet.</source>
        <translation>Noch kann sich kein Telefon mit einem gekoppelten Schlüssel anmelden.</translation>
    </message>
</context>
<context>
    <name>ExplanationStep</name>
    <message>
        <source>A bridge that never drops.</source>
        <translation>Eine Verbindung, die nie abreißt.</translation>
    </message>
    <message>
        <source>Survives WiFi switches and sleep</source>
        <translation>Übersteht WLAN-Wechsel und Ruhezustand</translation>
    </message>
    <message>
        <source>Reconnects automatically</source>
        <translation>Verbindet sich automatisch neu</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Weiter</translation>
    </message>
</context>
<context>
    <name>GeneralTab</name>
    <message>
        <source>Server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>Start server automatically</source>
        <translation>Server automatisch starten</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Local IP</source>
        <translation>Lokale IP</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>Läuft</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Angehalten</translation>
    </message>
    <message>
        <source>Uptime</source>
        <translation>Laufzeit</translation>
    </message>
    <message>
        <source>Stop Server</source>
        <translation>Server anhalten</translation>
    </message>
    <message>
        <source>Start Server</source>
        <translation>Server starten</translation>
    </message>
    <message>
        <source>Server running</source>
        <translation>Server läuft</translation>
    </message>
    <message>
        <source>Server stopped</source>
        <translation>Server angehalten</translation>
    </message>
</context>
<context>
    <name>HeaderSection</name>
    <message>
        <source>Port %1</source>
        <translation>Port %1</translation>
    </message>
    <message>
        <source>Server off</source>
        <translation>Server aus</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>Server running on port %1</source>
        <translation>Server läuft auf Port %1</translation>
    </message>
</context>
<context>
    <name>InstallEtSheet</name>
    <message>
        <source>Install Eternal Terminal</source>
        <translation>Eternal Terminal installieren</translation>
    </message>
    <message>
        <source>This copy of QuivraMac was built without its own Eternal Terminal server, which keeps your iPhone&apos;s sessions alive. Install Eternal Terminal once: QuivraMac finds its etserver on your PATH.</source>
        <translation>Diese QuivraMac-Version wurde ohne eigenen Eternal-Terminal-Server gebaut, der die Sitzungen deines iPhones am Leben hält. Installiere Eternal Terminal einmalig: QuivraMac findet dessen etserver in deinem PATH.</translation>
    </message>
    <message>
        <source>1. Run this in a terminal:</source>
        <translation>1. Führe dies in einem Terminal aus:</translation>
    </message>
    <message>
        <source>1. Build and install it from source, as the download page describes.</source>
        <translation>1. Baue und installiere es aus dem Quellcode, wie auf der Download-Seite beschrieben.</translation>
    </message>
    <message>
        <source>2. Turn on the server with the switch in the QuivraMac panel.</source>
        <translation>2. Schalte den Server mit dem Schalter im QuivraMac-Bedienfeld ein.</translation>
    </message>
    <message>
        <source>Open Download Page</source>
        <translation>Download-Seite öffnen</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
</context>
<context>
    <name>InstallLink</name>
    <message>
        <source>How to install Eternal Terminal...</source>
        <translation>So installierst du Eternal Terminal …</translation>
    </message>
</context>
<context>
    <name>LogsTab</name>
    <message>
        <source>Server Logs</source>
        <translation>Serverprotokolle</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>No logs yet...</source>
        <translation>Noch keine Protokolle …</translation>
    </message>
</context>
<context>
    <name>MenuBarView</name>
    <message>
        <source>How to install Eternal Terminal...</source>
        <translation>So installierst du Eternal Terminal …</translation>
    </message>
    <message>
        <source>Last paired: %1</source>
        <translation>Zuletzt gekoppelt: %1</translation>
    </message>
    <message>
        <source>Setup Assistant...</source>
        <translation>Einrichtungsassistent …</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Einstellungen …</translation>
    </message>
    <message>
        <source>Quit QuivraMac</source>
        <translation>QuivraMac beenden</translation>
    </message>
</context>
<context>
    <name>OnboardingFlow</name>
    <message>
        <source>The code entered on your iPhone didn&apos;t match.</source>
        <translation>Der auf dem iPhone eingegebene Code stimmte nicht.</translation>
    </message>
    <message>
        <source>No device connected within the time limit.</source>
        <translation>Innerhalb der Frist hat sich kein Gerät verbunden.</translation>
    </message>
</context>
<context>
    <name>PairingSection</name>
    <message>
        <source>Pair New Device</source>
        <translation>Neues Gerät koppeln</translation>
    </message>
    <message>
        <source>Pairing Mode</source>
        <translation>Kopplungsmodus</translation>
    </message>
    <message>
        <source>Enter this code in Quivra on your iPhone</source>
        <translation>Gib diesen Code in Quivra auf deinem iPhone ein</translation>
    </message>
    <message>
        <source>Stop Pairing</source>
        <translation>Kopplung beenden</translation>
    </message>
    <message>
        <source>Time left: %1</source>
        <translation>Verbleibende Zeit: %1</translation>
    </message>
    <message>
        <source>Pairing code %1</source>
        <translation>Kopplungscode %1</translation>
    </message>
</context>
<context>
    <name>PairingSession</name>
    <message>
        <source>Someone is guessing the code from %1</source>
        <translation>Jemand rät den Code von %1 aus</translation>
    </message>
    <message numerus="yes">
        <source>Someone is guessing the code from %1 and %n other address(es)</source>
        <translation>
            <numerusform>Jemand rät den Code von %1 und %n weiteren Adresse aus</numerusform>
            <numerusform>Jemand rät den Code von %1 und %n weiteren Adressen aus</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PairingStep</name>
    <message>
        <source>Open Quivra on your iPhone</source>
        <translation>Öffne Quivra auf deinem iPhone</translation>
    </message>
    <message>
        <source>Tap &quot;Add Mac&quot;</source>
        <translation>Tippe auf „Add Mac“</translation>
    </message>
    <message>
        <source>Enter this code:</source>
        <translation>Gib diesen Code ein:</translation>
    </message>
    <message>
        <source>Expires in %1</source>
        <translation>Läuft ab in %1</translation>
    </message>
    <message>
        <source>Having trouble?</source>
        <translation>Probleme?</translation>
    </message>
    <message>
        <source>Try manual setup</source>
        <translation>Manuell einrichten</translation>
    </message>
    <message>
        <source>Exchanging keys...</source>
        <translation>Schlüssel werden ausgetauscht …</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>Add this computer by hand</source>
        <translation>Diesen Computer von Hand hinzufügen</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Pairing code %1</source>
        <translation>Kopplungscode %1</translation>
    </message>
</context>
<context>
    <name>PhoneService</name>
    <message>
        <source>Port %1 is in use, so phones cannot pair</source>
        <translation>Port %1 wird bereits verwendet, daher können keine Telefone gekoppelt werden</translation>
    </message>
    <message>
        <source>Phones cannot pair: %1</source>
        <translation>Telefone können nicht gekoppelt werden: %1</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Protokolle</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Geräte</translation>
    </message>
</context>
<context>
    <name>SetupWindow</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>SuccessStep</name>
    <message>
        <source>QuivraMac lives here</source>
        <translation>Hier wohnt QuivraMac</translation>
    </message>
    <message>
        <source>You&apos;re all set!</source>
        <translation>Alles bereit!</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>Bei der Anmeldung starten</translation>
    </message>
    <message>
        <source>Recommended</source>
        <translation>Empfohlen</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
</context>
<context>
    <name>SystemCheck</name>
    <message>
        <source>Looking good!</source>
        <translation>Sieht gut aus!</translation>
    </message>
    <message>
        <source>Almost there...</source>
        <translation>Fast geschafft …</translation>
    </message>
    <message>
        <source>SSH Keys</source>
        <translation>SSH-Schlüssel</translation>
    </message>
    <message>
        <source>Ready to authenticate</source>
        <translation>Bereit zur Authentifizierung</translation>
    </message>
    <message>
        <source>Quivra Server</source>
        <translation>Quivra-Server</translation>
    </message>
    <message>
        <source>Running on port %1</source>
        <translation>Läuft auf Port %1</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Netzwerk</translation>
    </message>
    <message>
        <source>Connected at %1</source>
        <translation>Verbunden unter %1</translation>
    </message>
    <message>
        <source>~/.ssh directory doesn&apos;t exist</source>
        <translation>Der Ordner ~/.ssh existiert nicht</translation>
    </message>
    <message>
        <source>~/.ssh has wrong permissions</source>
        <translation>~/.ssh hat falsche Zugriffsrechte</translation>
    </message>
    <message>
        <source>authorized_keys has wrong permissions</source>
        <translation>authorized_keys hat falsche Zugriffsrechte</translation>
    </message>
    <message>
        <source>Server couldn&apos;t start</source>
        <translation>Der Server konnte nicht starten</translation>
    </message>
    <message>
        <source>Eternal Terminal is not installed</source>
        <translation>Eternal Terminal ist nicht installiert</translation>
    </message>
    <message>
        <source>Port %1 is in use</source>
        <translation>Port %1 wird bereits verwendet</translation>
    </message>
    <message>
        <source>No network connection</source>
        <translation>Keine Netzwerkverbindung</translation>
    </message>
</context>
<context>
    <name>SystemCheckStep</name>
    <message>
        <source>Fix</source>
        <translation>Beheben</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>wartet</translation>
    </message>
    <message>
        <source>checking</source>
        <translation>wird geprüft</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>fehlgeschlagen</translation>
    </message>
</context>
<context>
    <name>TrayIcon</name>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Pair New Device</source>
        <translation>Neues Gerät koppeln</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Einstellungen …</translation>
    </message>
    <message>
        <source>Quit QuivraMac</source>
        <translation>QuivraMac beenden</translation>
    </message>
    <message>
        <source>Server running on port %1</source>
        <translation>Server läuft auf Port %1</translation>
    </message>
    <message>
        <source>Server not running: %1</source>
        <translation>Server läuft nicht: %1</translation>
    </message>
    <message>
        <source>Server off</source>
        <translation>Server aus</translation>
    </message>
    <message>
        <source>Setup is not finished yet</source>
        <translation>Die Einrichtung ist noch nicht abgeschlossen</translation>
    </message>
    <message>
        <source>Pairing: the code expires in %1</source>
        <translation>Kopplung: Der Code läuft in %1 ab</translation>
    </message>
</context>
<context>
    <name>UiController</name>
    <message>
        <source>Address: %1
User: %2
SSH port: %3
Eternal Terminal port: %4</source>
        <translation>Adresse: %1
Benutzer: %2
SSH-Port: %3
Eternal-Terminal-Port: %4</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; is connecting...</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; verbindet sich …</translation>
    </message>
</context>
<context>
    <name>WelcomeStep</name>
    <message>
        <source>Continue</source>
        <translation>Weiter</translation>
    </message>
</context>
<context>
    <name>formats</name>
    <message>
        <source>%1h %2m %3s</source>
        <translation>%1 h %2 min %3 s</translation>
    </message>
    <message>
        <source>%1s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1m %2s</source>
        <translation>%1 min %2 s</translation>
    </message>
</context>
<context>
    <name>quivractl</name>
    <message>
        <source>%1h %2m %3s</source>
        <translation>%1 h %2 min %3 s</translation>
    </message>
    <message>
        <source>The status endpoint did not answer (%1); is the server running?</source>
        <translation>Der Status-Endpunkt hat nicht geantwortet (%1); läuft der Server?</translation>
    </message>
    <message>
        <source>Server:       %1</source>
        <translation>Server:       %1</translation>
    </message>
    <message>
        <source>running, up %1</source>
        <translation>läuft seit %1</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>angehalten</translation>
    </message>
    <message>
        <source>Reason:       %1</source>
        <translation>Grund:        %1</translation>
    </message>
    <message>
        <source>Port:         %1</source>
        <translation>Port:         %1</translation>
    </message>
    <message>
        <source>Address:      %1</source>
        <translation>Adresse:      %1</translation>
    </message>
    <message>
        <source>Pairing:      %1</source>
        <translation>Kopplung:     %1</translation>
    </message>
    <message>
        <source>on</source>
        <translation>an</translation>
    </message>
    <message>
        <source>off</source>
        <translation>aus</translation>
    </message>
    <message>
        <source>Last paired:  %1</source>
        <translation>Zuletzt:      %1</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keins</translation>
    </message>
    <message>
        <source>Server running, accepting connections on port %1</source>
        <translation>Server läuft und nimmt Verbindungen auf Port %1 an</translation>
    </message>
    <message>
        <source>The server did not start: %1</source>
        <translation>Der Server ist nicht gestartet: %1</translation>
    </message>
    <message>
        <source>it stopped; see quivractl logs</source>
        <translation>er wurde beendet; siehe quivractl logs</translation>
    </message>
    <message>
        <source>The server is running but port %1 did not accept connections within %2 s; see quivractl logs</source>
        <translation>Der Server läuft, aber Port %1 hat innerhalb von %2 s keine Verbindungen angenommen; siehe quivractl logs</translation>
    </message>
    <message>
        <source>The server did not stop within %1 s; see quivractl logs</source>
        <translation>Der Server wurde nicht innerhalb von %1 s beendet; siehe quivractl logs</translation>
    </message>
    <message>
        <source>Server stopped</source>
        <translation>Server angehalten</translation>
    </message>
    <message>
        <source>The server is not running, so no phone can pair. Start it with: quivractl start</source>
        <translation>Der Server läuft nicht, daher kann kein Telefon gekoppelt werden. Starte ihn mit: quivractl start</translation>
    </message>
    <message>
        <source>The server is not running (%1), so no phone can pair.</source>
        <translation>Der Server läuft nicht (%1), daher kann kein Telefon gekoppelt werden.</translation>
    </message>
    <message>
        <source>Pairing code: %1</source>
        <translation>Kopplungscode: %1</translation>
    </message>
    <message>
        <source>Address: %1</source>
        <translation>Adresse: %1</translation>
    </message>
    <message>
        <source>Open Quivra on your iPhone and enter the code. Ctrl-C cancels.</source>
        <translation>Öffne Quivra auf deinem iPhone und gib den Code ein. Strg+C bricht ab.</translation>
    </message>
    <message>
        <source>Expires in %1</source>
        <translation>Läuft ab in %1</translation>
    </message>
    <message>
        <source>Paired with %1</source>
        <translation>Gekoppelt mit %1</translation>
    </message>
    <message>
        <source>The pairing code expired.</source>
        <translation>Der Kopplungscode ist abgelaufen.</translation>
    </message>
    <message>
        <source>Pairing mode was switched off.</source>
        <translation>Der Kopplungsmodus wurde ausgeschaltet.</translation>
    </message>
    <message>
        <source>Pairing cancelled.</source>
        <translation>Kopplung abgebrochen.</translation>
    </message>
    <message>
        <source>No paired phones.</source>
        <translation>Keine gekoppelten Telefone.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Paired</source>
        <translation>Gekoppelt</translation>
    </message>
    <message>
        <source>Fingerprint</source>
        <translation>Fingerabdruck</translation>
    </message>
    <message>
        <source>Revoke &quot;%1&quot;? It will no longer be able to log in to this computer. [y/N] </source>
        <translation>„%1“ widerrufen? Das Gerät kann sich dann nicht mehr an diesem Computer anmelden. [y/N] </translation>
    </message>
    <message>
        <source>Nothing revoked.</source>
        <translation>Nichts widerrufen.</translation>
    </message>
    <message>
        <source>No session bus, so QuivraMac cannot be reached. Run quivractl in the same login session as the app.</source>
        <translation>Kein Sitzungsbus, daher ist QuivraMac nicht erreichbar. Führe quivractl in derselben Anmeldesitzung wie die App aus.</translation>
    </message>
    <message>
        <source>QuivraMac is not running. Start it with &quot;quivramac&quot; or &quot;systemctl --user start quivramac&quot;.</source>
        <translation>QuivraMac läuft nicht. Starte es mit „quivramac“ oder „systemctl --user start quivramac“.</translation>
    </message>
    <message>
        <source>QuivraMac did not answer: %1</source>
        <translation>QuivraMac hat nicht geantwortet: %1</translation>
    </message>
    <message>
        <source>Show the server (and why it is not running), its address, pairing mode and the last paired phone.</source>
        <translation>Zeigt den Server (und warum er nicht läuft), seine Adresse, den Kopplungsmodus und das zuletzt gekoppelte Telefon.</translation>
    </message>
    <message>
        <source>Start the Quivra server and wait until it accepts connections (at most 5 s).</source>
        <translation>Startet den Quivra-Server und wartet, bis er Verbindungen annimmt (höchstens 5 s).</translation>
    </message>
    <message>
        <source>Stop the Quivra server.</source>
        <translation>Hält den Quivra-Server an.</translation>
    </message>
    <message>
        <source>Switch pairing mode on, show the code and wait for a phone to pair.</source>
        <translation>Schaltet den Kopplungsmodus ein, zeigt den Code und wartet auf ein Telefon.</translation>
    </message>
    <message>
        <source>Print the app&apos;s log.</source>
        <translation>Gibt das Protokoll der App aus.</translation>
    </message>
    <message>
        <source>List the phones that can log in to this computer.</source>
        <translation>Listet die Telefone auf, die sich an diesem Computer anmelden können.</translation>
    </message>
    <message>
        <source>Take a phone&apos;s key away, by its name or fingerprint.</source>
        <translation>Entzieht einem Telefon seinen Schlüssel, anhand von Name oder Fingerabdruck.</translation>
    </message>
    <message>
        <source>Show the app&apos;s panel (its setup window while that is open).</source>
        <translation>Zeigt das Bedienfeld der App (bzw. das Einrichtungsfenster, solange es offen ist).</translation>
    </message>
    <message>
        <source>Usage: quivractl &lt;command&gt; [options]

Controls the running QuivraMac app.

Commands:
</source>
        <translation>Aufruf: quivractl &lt;command&gt; [options]

Steuert die laufende QuivraMac-App.

Befehle:
</translation>
    </message>
    <message>
        <source>
Run &quot;quivractl &lt;command&gt; --help&quot; for a command&apos;s options.
</source>
        <translation>
Die Optionen eines Befehls zeigt „quivractl &lt;command&gt; --help“.
</translation>
    </message>
    <message>
        <source>Unknown command &quot;%1&quot;.
</source>
        <translation>Unbekannter Befehl „%1“.
</translation>
    </message>
    <message>
        <source>Print the status report a phone receives.</source>
        <translation>Gibt den Statusbericht aus, den ein Telefon erhält.</translation>
    </message>
    <message>
        <source>Keep printing new log lines.</source>
        <translation>Gibt weiterhin neue Protokollzeilen aus.</translation>
    </message>
    <message>
        <source>Revoke without asking first.</source>
        <translation>Widerruft ohne Rückfrage.</translation>
    </message>
    <message>
        <source>The phone&apos;s name or SHA256 fingerprint.</source>
        <translation>Name oder SHA256-Fingerabdruck des Telefons.</translation>
    </message>
    <message>
        <source>Which phone? Give its name or fingerprint (see quivractl devices).
</source>
        <translation>Welches Telefon? Gib Name oder Fingerabdruck an (siehe quivractl devices).
</translation>
    </message>
    <message>
        <source>Unexpected argument &quot;%1&quot;.
</source>
        <translation>Unerwartetes Argument „%1“.
</translation>
    </message>
    <message>
        <source>QuivraMac did not answer.</source>
        <translation>QuivraMac hat nicht geantwortet.</translation>
    </message>
    <message>
        <source>QuivraMac is running without a display (as the user service, for example), so it has no window to show here. To use it on this desktop, stop that instance and start it again from here: systemctl --user stop quivramac &amp;&amp; quivramac</source>
        <translation>QuivraMac läuft ohne Bildschirm (zum Beispiel als Benutzerdienst) und hat daher hier kein Fenster anzuzeigen. Um es auf dieser Arbeitsfläche zu nutzen, beende diese Instanz und starte es von hier aus neu: systemctl --user stop quivramac &amp;&amp; quivramac</translation>
    </message>
</context>
<context>
    <name>serverfailure</name>
    <message>
        <source>Eternal Terminal (etserver) is not installed</source>
        <translation>Eternal Terminal (etserver) ist nicht installiert</translation>
    </message>
    <message>
        <source>etserver could not be started: %1</source>
        <translation>etserver konnte nicht gestartet werden: %1</translation>
    </message>
    <message>
        <source>Port %1 is in use</source>
        <translation>Port %1 wird bereits verwendet</translation>
    </message>
    <message>
        <source>%1 belongs to another user</source>
        <translation>%1 gehört einem anderen Benutzer</translation>
    </message>
    <message>
        <source>etserver stopped unexpectedly (signal %1)</source>
        <translation>etserver wurde unerwartet beendet (Signal %1)</translation>
    </message>
    <message>
        <source>etserver stopped unexpectedly (exit code %1)</source>
        <translation>etserver wurde unerwartet beendet (Exit-Code %1)</translation>
    </message>
    <message>
        <source>; QuivraMac gave up restarting it after %1 stops in %2 minutes</source>
        <translation>; QuivraMac hat nach %1 Abbrüchen in %2 Minuten aufgehört, ihn neu zu starten</translation>
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
        <translation>%1 ist ein Verweis; setze die Zugriffsrechte seines Ziels selbst</translation>
    </message>
    <message>
        <source>%1 is not a regular file or folder; move it aside</source>
        <translation>%1 ist weder eine normale Datei noch ein Ordner; verschiebe es</translation>
    </message>
    <message>
        <source>Cannot open %1</source>
        <translation>%1 kann nicht geöffnet werden</translation>
    </message>
    <message>
        <source>Cannot inspect %1</source>
        <translation>%1 kann nicht untersucht werden</translation>
    </message>
    <message>
        <source>%1 belongs to someone else (uid %2); it is left as it is</source>
        <translation>%1 gehört jemand anderem (UID %2) und bleibt unverändert</translation>
    </message>
    <message>
        <source>Cannot change the permissions of %1</source>
        <translation>Die Zugriffsrechte von %1 können nicht geändert werden</translation>
    </message>
    <message>
        <source>Cannot create %1</source>
        <translation>%1 kann nicht angelegt werden</translation>
    </message>
    <message>
        <source>%1 is not a regular file; move it aside</source>
        <translation>%1 ist keine normale Datei; verschiebe sie</translation>
    </message>
</context>
<context>
    <name>wording</name>
    <message>
        <source>QuivraMac Setup</source>
        <translation>QuivraMac-Einrichtung</translation>
    </message>
    <message>
        <source>QuivraMac Settings</source>
        <translation>QuivraMac-Einstellungen</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computer</translation>
    </message>
    <message>
        <source>Your computer, ready for Quivra.</source>
        <translation>Dein Computer, bereit für Quivra.</translation>
    </message>
    <message>
        <source>This app runs quietly in your system tray,
keeping your computer connected to Quivra on iOS.</source>
        <translation>Diese App läuft unauffällig im Systembereich
und hält deinen Computer mit Quivra auf iOS verbunden.</translation>
    </message>
    <message>
        <source>QuivraMac creates a resilient connection
between your iPhone and this computer.</source>
        <translation>QuivraMac schafft eine belastbare Verbindung
zwischen deinem iPhone und diesem Computer.</translation>
    </message>
    <message>
        <source>Runs invisibly in the system tray</source>
        <translation>Läuft unsichtbar im Systembereich</translation>
    </message>
    <message>
        <source>%1 is now connected to this computer.</source>
        <translation>%1 ist jetzt mit diesem Computer verbunden.</translation>
    </message>
    <message>
        <source>Checking your computer...</source>
        <translation>Dein Computer wird geprüft …</translation>
    </message>
    <message>
        <source>Your computer accepts secure connections</source>
        <translation>Dein Computer nimmt sichere Verbindungen an</translation>
    </message>
    <message>
        <source>Your computer is on &quot;%1&quot;. Make sure your iPhone is on the same network.</source>
        <translation>Dein Computer ist in „%1“. Achte darauf, dass dein iPhone im selben Netzwerk ist.</translation>
    </message>
    <message>
        <source>Your iPhone couldn&apos;t reach this computer.</source>
        <translation>Dein iPhone konnte diesen Computer nicht erreichen.</translation>
    </message>
    <message>
        <source>SSH Server</source>
        <translation>SSH-Server</translation>
    </message>
    <message>
        <source>SSH server is installed but not running. Start its service (sshd).</source>
        <translation>Der SSH-Server ist installiert, läuft aber nicht. Starte seinen Dienst (sshd).</translation>
    </message>
    <message>
        <source>SSH server is installed but not running. Start it with:</source>
        <translation>Der SSH-Server ist installiert, läuft aber nicht. Starte ihn mit:</translation>
    </message>
    <message>
        <source>SSH server is not installed. Install it with:</source>
        <translation>Der SSH-Server ist nicht installiert. Installiere ihn mit:</translation>
    </message>
    <message>
        <source>SSH server is not installed. Install and start OpenSSH&apos;s sshd.</source>
        <translation>Der SSH-Server ist nicht installiert. Installiere und starte sshd von OpenSSH.</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Einrichtung</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Mac</source>
        <translation>Mac</translation>
    </message>
    <message>
        <source>Your Mac, ready for Quivra.</source>
        <translation>Dein Mac, bereit für Quivra.</translation>
    </message>
    <message>
        <source>This app runs quietly in your menu bar,
keeping your Mac connected to Quivra on iOS.</source>
        <translation>Diese App läuft unauffällig in der Menüleiste
und hält deinen Mac mit Quivra auf iOS verbunden.</translation>
    </message>
    <message>
        <source>QuivraMac creates a resilient connection
between your iPhone and this Mac.</source>
        <translation>QuivraMac schafft eine belastbare Verbindung
zwischen deinem iPhone und diesem Mac.</translation>
    </message>
    <message>
        <source>Runs invisibly in the menu bar</source>
        <translation>Läuft unsichtbar in der Menüleiste</translation>
    </message>
    <message>
        <source>%1 is now connected to this Mac.</source>
        <translation>%1 ist jetzt mit diesem Mac verbunden.</translation>
    </message>
    <message>
        <source>Checking your Mac...</source>
        <translation>Dein Mac wird geprüft …</translation>
    </message>
    <message>
        <source>Your Mac accepts secure connections</source>
        <translation>Dein Mac nimmt sichere Verbindungen an</translation>
    </message>
    <message>
        <source>Your Mac is on &quot;%1&quot;. Make sure your iPhone is on the same network.</source>
        <translation>Dein Mac ist in „%1“. Achte darauf, dass dein iPhone im selben Netzwerk ist.</translation>
    </message>
    <message>
        <source>Your iPhone couldn&apos;t reach this Mac.</source>
        <translation>Dein iPhone konnte diesen Mac nicht erreichen.</translation>
    </message>
    <message>
        <source>Remote Login</source>
        <translation>Entfernte Anmeldung</translation>
    </message>
    <message>
        <source>Remote Login is disabled</source>
        <translation>Entfernte Anmeldung ist deaktiviert</translation>
    </message>
</context>
</TS>
