<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>AskClaudeCard</name>
    <message>
        <source>Ask Claude Code</source>
        <translation>Demander à Claude Code</translation>
    </message>
    <message>
        <source>Copied!</source>
        <translation>Copié&#xa0;!</translation>
    </message>
    <message>
        <source>Copy to Clipboard</source>
        <translation>Copier dans le presse-papiers</translation>
    </message>
</context>
<context>
    <name>CommandField</name>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
</context>
<context>
    <name>DeviceRow</name>
    <message>
        <source>Revoke...</source>
        <translation>Révoquer…</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Paired %1</source>
        <translation>Associé le %1</translation>
    </message>
    <message>
        <source>Revoke “%1”? It will no longer be able to log in to this computer.</source>
        <translation>Révoquer «&#xa0;%1&#xa0;»&#xa0;? Il ne pourra plus se connecter à cet ordinateur.</translation>
    </message>
    <message>
        <source>Revoke</source>
        <translation>Révoquer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>DevicesTab</name>
    <message>
        <source>Paired Devices</source>
        <translation>Appareils associés</translation>
    </message>
    <message>
        <source>No phone can log in with a paired key yet.</source>
        <translation>Aucun téléphone ne peut encore se connecter avec une clé associée.</translation>
    </message>
</context>
<context>
    <name>ExplanationStep</name>
    <message>
        <source>A bridge that never drops.</source>
        <translation>Un pont qui ne lâche jamais.</translation>
    </message>
    <message>
        <source>Survives WiFi switches and sleep</source>
        <translation>Résiste aux changements de Wi-Fi et à la veille</translation>
    </message>
    <message>
        <source>Reconnects automatically</source>
        <translation>Se reconnecte automatiquement</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuer</translation>
    </message>
</context>
<context>
    <name>GeneralTab</name>
    <message>
        <source>Server</source>
        <translation>Serveur</translation>
    </message>
    <message>
        <source>Start server automatically</source>
        <translation>Démarrer le serveur automatiquement</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Local IP</source>
        <translation>IP locale</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>En cours</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Arrêté</translation>
    </message>
    <message>
        <source>Uptime</source>
        <translation>Durée de fonctionnement</translation>
    </message>
    <message>
        <source>Stop Server</source>
        <translation>Arrêter le serveur</translation>
    </message>
    <message>
        <source>Start Server</source>
        <translation>Démarrer le serveur</translation>
    </message>
    <message>
        <source>Server running</source>
        <translation>Serveur en marche</translation>
    </message>
    <message>
        <source>Server stopped</source>
        <translation>Serveur arrêté</translation>
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
        <translation>Serveur arrêté</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Serveur</translation>
    </message>
    <message>
        <source>Server running on port %1</source>
        <translation>Serveur en marche sur le port %1</translation>
    </message>
</context>
<context>
    <name>InstallEtSheet</name>
    <message>
        <source>Install Eternal Terminal</source>
        <translation>Installer Eternal Terminal</translation>
    </message>
    <message>
        <source>This copy of QuivraMac was built without its own Eternal Terminal server, which keeps your iPhone&apos;s sessions alive. Install Eternal Terminal once: QuivraMac finds its etserver on your PATH.</source>
        <translation>Cette copie de QuivraMac a été compilée sans son propre serveur Eternal Terminal, qui maintient les sessions de votre iPhone. Installez Eternal Terminal une fois&#xa0;: QuivraMac trouvera son etserver dans votre PATH.</translation>
    </message>
    <message>
        <source>1. Run this in a terminal:</source>
        <translation>1. Exécutez ceci dans un terminal&#xa0;:</translation>
    </message>
    <message>
        <source>1. Build and install it from source, as the download page describes.</source>
        <translation>1. Compilez-le et installez-le depuis les sources, comme l’explique la page de téléchargement.</translation>
    </message>
    <message>
        <source>2. Turn on the server with the switch in the QuivraMac panel.</source>
        <translation>2. Activez le serveur avec l’interrupteur du panneau QuivraMac.</translation>
    </message>
    <message>
        <source>Open Download Page</source>
        <translation>Ouvrir la page de téléchargement</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
</context>
<context>
    <name>InstallLink</name>
    <message>
        <source>How to install Eternal Terminal...</source>
        <translation>Comment installer Eternal Terminal…</translation>
    </message>
</context>
<context>
    <name>LogsTab</name>
    <message>
        <source>Server Logs</source>
        <translation>Journaux du serveur</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>No logs yet...</source>
        <translation>Aucun journal pour l’instant…</translation>
    </message>
</context>
<context>
    <name>MenuBarView</name>
    <message>
        <source>How to install Eternal Terminal...</source>
        <translation>Comment installer Eternal Terminal…</translation>
    </message>
    <message>
        <source>Last paired: %1</source>
        <translation>Dernier associé&#xa0;: %1</translation>
    </message>
    <message>
        <source>Setup Assistant...</source>
        <translation>Assistant de configuration…</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Paramètres…</translation>
    </message>
    <message>
        <source>Quit QuivraMac</source>
        <translation>Quitter QuivraMac</translation>
    </message>
</context>
<context>
    <name>OnboardingFlow</name>
    <message>
        <source>The code entered on your iPhone didn&apos;t match.</source>
        <translation>Le code saisi sur votre iPhone ne correspond pas.</translation>
    </message>
    <message>
        <source>No device connected within the time limit.</source>
        <translation>Aucun appareil ne s’est connecté dans le délai imparti.</translation>
    </message>
</context>
<context>
    <name>PairingSection</name>
    <message>
        <source>Pair New Device</source>
        <translation>Associer un nouvel appareil</translation>
    </message>
    <message>
        <source>Pairing Mode</source>
        <translation>Mode d’association</translation>
    </message>
    <message>
        <source>Enter this code in Quivra on your iPhone</source>
        <translation>Saisissez ce code dans Quivra sur votre iPhone</translation>
    </message>
    <message>
        <source>Stop Pairing</source>
        <translation>Arrêter l’association</translation>
    </message>
    <message>
        <source>Time left: %1</source>
        <translation>Temps restant : %1</translation>
    </message>
    <message>
        <source>Pairing code %1</source>
        <translation>Code d’association %1</translation>
    </message>
</context>
<context>
    <name>PairingSession</name>
    <message>
        <source>Someone is guessing the code from %1</source>
        <translation>Quelqu’un essaie de deviner le code depuis %1</translation>
    </message>
    <message numerus="yes">
        <source>Someone is guessing the code from %1 and %n other address(es)</source>
        <translation>
            <numerusform>Quelqu’un essaie de deviner le code depuis %1 et %n autre adresse</numerusform>
            <numerusform>Quelqu’un essaie de deviner le code depuis %1 et %n autres adresses</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PairingStep</name>
    <message>
        <source>Open Quivra on your iPhone</source>
        <translation>Ouvrez Quivra sur votre iPhone</translation>
    </message>
    <message>
        <source>Tap &quot;Add Mac&quot;</source>
        <translation>Touchez «&#xa0;Add Mac&#xa0;»</translation>
    </message>
    <message>
        <source>Enter this code:</source>
        <translation>Saisissez ce code&#xa0;:</translation>
    </message>
    <message>
        <source>Expires in %1</source>
        <translation>Expire dans %1</translation>
    </message>
    <message>
        <source>Having trouble?</source>
        <translation>Un problème&#xa0;?</translation>
    </message>
    <message>
        <source>Try manual setup</source>
        <translation>Essayer la configuration manuelle</translation>
    </message>
    <message>
        <source>Exchanging keys...</source>
        <translation>Échange des clés…</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>Add this computer by hand</source>
        <translation>Ajouter cet ordinateur manuellement</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Pairing code %1</source>
        <translation>Code d’association %1</translation>
    </message>
</context>
<context>
    <name>PhoneService</name>
    <message>
        <source>Port %1 is in use, so phones cannot pair</source>
        <translation>Le port %1 est déjà utilisé, les téléphones ne peuvent donc pas s’associer</translation>
    </message>
    <message>
        <source>Phones cannot pair: %1</source>
        <translation>Les téléphones ne peuvent pas s’associer&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Journaux</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Appareils</translation>
    </message>
</context>
<context>
    <name>SetupWindow</name>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>SuccessStep</name>
    <message>
        <source>QuivraMac lives here</source>
        <translation>QuivraMac se trouve ici</translation>
    </message>
    <message>
        <source>You&apos;re all set!</source>
        <translation>Tout est prêt&#xa0;!</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>Lancer à l’ouverture de session</translation>
    </message>
    <message>
        <source>Recommended</source>
        <translation>Recommandé</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
</context>
<context>
    <name>SystemCheck</name>
    <message>
        <source>Looking good!</source>
        <translation>Tout va bien&#xa0;!</translation>
    </message>
    <message>
        <source>Almost there...</source>
        <translation>On y est presque…</translation>
    </message>
    <message>
        <source>SSH Keys</source>
        <translation>Clés SSH</translation>
    </message>
    <message>
        <source>Ready to authenticate</source>
        <translation>Prêt pour l’authentification</translation>
    </message>
    <message>
        <source>Quivra Server</source>
        <translation>Serveur Quivra</translation>
    </message>
    <message>
        <source>Running on port %1</source>
        <translation>En cours sur le port %1</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Réseau</translation>
    </message>
    <message>
        <source>Connected at %1</source>
        <translation>Connecté à %1</translation>
    </message>
    <message>
        <source>~/.ssh directory doesn&apos;t exist</source>
        <translation>Le dossier ~/.ssh n’existe pas</translation>
    </message>
    <message>
        <source>~/.ssh has wrong permissions</source>
        <translation>~/.ssh a de mauvaises permissions</translation>
    </message>
    <message>
        <source>authorized_keys has wrong permissions</source>
        <translation>authorized_keys a de mauvaises permissions</translation>
    </message>
    <message>
        <source>Server couldn&apos;t start</source>
        <translation>Le serveur n’a pas pu démarrer</translation>
    </message>
    <message>
        <source>Eternal Terminal is not installed</source>
        <translation>Eternal Terminal n’est pas installé</translation>
    </message>
    <message>
        <source>Port %1 is in use</source>
        <translation>Le port %1 est déjà utilisé</translation>
    </message>
    <message>
        <source>No network connection</source>
        <translation>Aucune connexion réseau</translation>
    </message>
</context>
<context>
    <name>SystemCheckStep</name>
    <message>
        <source>Fix</source>
        <translation>Corriger</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>en attente</translation>
    </message>
    <message>
        <source>checking</source>
        <translation>vérification en cours</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>échec</translation>
    </message>
</context>
<context>
    <name>TrayIcon</name>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Pair New Device</source>
        <translation>Associer un nouvel appareil</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Paramètres…</translation>
    </message>
    <message>
        <source>Quit QuivraMac</source>
        <translation>Quitter QuivraMac</translation>
    </message>
    <message>
        <source>Server running on port %1</source>
        <translation>Serveur en cours sur le port %1</translation>
    </message>
    <message>
        <source>Server not running: %1</source>
        <translation>Serveur arrêté&#xa0;: %1</translation>
    </message>
    <message>
        <source>Server off</source>
        <translation>Serveur arrêté</translation>
    </message>
    <message>
        <source>Setup is not finished yet</source>
        <translation>La configuration n’est pas encore terminée</translation>
    </message>
    <message>
        <source>Pairing: the code expires in %1</source>
        <translation>Association&#xa0;: le code expire dans %1</translation>
    </message>
</context>
<context>
    <name>UiController</name>
    <message>
        <source>Address: %1
User: %2
SSH port: %3
Eternal Terminal port: %4</source>
        <translation>Adresse&#xa0;: %1
Utilisateur&#xa0;: %2
Port SSH&#xa0;: %3
Port Eternal Terminal&#xa0;: %4</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; is connecting...</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; se connecte…</translation>
    </message>
</context>
<context>
    <name>WelcomeStep</name>
    <message>
        <source>Continue</source>
        <translation>Continuer</translation>
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
        <translation>Le point d’accès d’état n’a pas répondu (%1)&#xa0;; le serveur est-il en cours&#xa0;?</translation>
    </message>
    <message>
        <source>Server:       %1</source>
        <translation>Serveur&#xa0;:     %1</translation>
    </message>
    <message>
        <source>running, up %1</source>
        <translation>en cours depuis %1</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>arrêté</translation>
    </message>
    <message>
        <source>Reason:       %1</source>
        <translation>Raison&#xa0;:      %1</translation>
    </message>
    <message>
        <source>Port:         %1</source>
        <translation>Port&#xa0;:        %1</translation>
    </message>
    <message>
        <source>Address:      %1</source>
        <translation>Adresse&#xa0;:     %1</translation>
    </message>
    <message>
        <source>Pairing:      %1</source>
        <translation>Association&#xa0;: %1</translation>
    </message>
    <message>
        <source>on</source>
        <translation>activé</translation>
    </message>
    <message>
        <source>off</source>
        <translation>désactivé</translation>
    </message>
    <message>
        <source>Last paired:  %1</source>
        <translation>Dernier&#xa0;:     %1</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucun</translation>
    </message>
    <message>
        <source>Server running, accepting connections on port %1</source>
        <translation>Serveur en cours, connexions acceptées sur le port %1</translation>
    </message>
    <message>
        <source>The server did not start: %1</source>
        <translation>Le serveur n’a pas démarré&#xa0;: %1</translation>
    </message>
    <message>
        <source>it stopped; see quivractl logs</source>
        <translation>il s’est arrêté&#xa0;; voir quivractl logs</translation>
    </message>
    <message>
        <source>The server is running but port %1 did not accept connections within %2 s; see quivractl logs</source>
        <translation>Le serveur est en cours, mais le port %1 n’a pas accepté de connexion en %2 s&#xa0;; voir quivractl logs</translation>
    </message>
    <message>
        <source>The server did not stop within %1 s; see quivractl logs</source>
        <translation>Le serveur ne s’est pas arrêté en %1 s&#xa0;; voir quivractl logs</translation>
    </message>
    <message>
        <source>Server stopped</source>
        <translation>Serveur arrêté</translation>
    </message>
    <message>
        <source>The server is not running, so no phone can pair. Start it with: quivractl start</source>
        <translation>Le serveur n’est pas en cours, aucun téléphone ne peut donc s’associer. Démarrez-le avec&#xa0;: quivractl start</translation>
    </message>
    <message>
        <source>The server is not running (%1), so no phone can pair.</source>
        <translation>Le serveur n’est pas en cours (%1), aucun téléphone ne peut donc s’associer.</translation>
    </message>
    <message>
        <source>Pairing code: %1</source>
        <translation>Code d’association&#xa0;: %1</translation>
    </message>
    <message>
        <source>Address: %1</source>
        <translation>Adresse&#xa0;: %1</translation>
    </message>
    <message>
        <source>Open Quivra on your iPhone and enter the code. Ctrl-C cancels.</source>
        <translation>Ouvrez Quivra sur votre iPhone et saisissez le code. Ctrl-C pour annuler.</translation>
    </message>
    <message>
        <source>Expires in %1</source>
        <translation>Expire dans %1</translation>
    </message>
    <message>
        <source>Paired with %1</source>
        <translation>Associé à %1</translation>
    </message>
    <message>
        <source>The pairing code expired.</source>
        <translation>Le code d’association a expiré.</translation>
    </message>
    <message>
        <source>Pairing mode was switched off.</source>
        <translation>Le mode d’association a été désactivé.</translation>
    </message>
    <message>
        <source>Pairing cancelled.</source>
        <translation>Association annulée.</translation>
    </message>
    <message>
        <source>No paired phones.</source>
        <translation>Aucun téléphone associé.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Paired</source>
        <translation>Associé le</translation>
    </message>
    <message>
        <source>Fingerprint</source>
        <translation>Empreinte</translation>
    </message>
    <message>
        <source>Revoke &quot;%1&quot;? It will no longer be able to log in to this computer. [y/N] </source>
        <translation>Révoquer «&#xa0;%1&#xa0;»&#xa0;? Il ne pourra plus se connecter à cet ordinateur. [y/N] </translation>
    </message>
    <message>
        <source>Nothing revoked.</source>
        <translation>Rien n’a été révoqué.</translation>
    </message>
    <message>
        <source>No session bus, so QuivraMac cannot be reached. Run quivractl in the same login session as the app.</source>
        <translation>Pas de bus de session&#xa0;: QuivraMac est injoignable. Lancez quivractl dans la même session que l’application.</translation>
    </message>
    <message>
        <source>QuivraMac is not running. Start it with &quot;quivramac&quot; or &quot;systemctl --user start quivramac&quot;.</source>
        <translation>QuivraMac n’est pas lancé. Démarrez-le avec «&#xa0;quivramac&#xa0;» ou «&#xa0;systemctl --user start quivramac&#xa0;».</translation>
    </message>
    <message>
        <source>QuivraMac did not answer: %1</source>
        <translation>QuivraMac n’a pas répondu&#xa0;: %1</translation>
    </message>
    <message>
        <source>Show the server (and why it is not running), its address, pairing mode and the last paired phone.</source>
        <translation>Affiche le serveur (et pourquoi il est arrêté), son adresse, le mode d’association et le dernier téléphone associé.</translation>
    </message>
    <message>
        <source>Start the Quivra server and wait until it accepts connections (at most 5 s).</source>
        <translation>Démarre le serveur Quivra et attend qu’il accepte les connexions (5 s au plus).</translation>
    </message>
    <message>
        <source>Stop the Quivra server.</source>
        <translation>Arrête le serveur Quivra.</translation>
    </message>
    <message>
        <source>Switch pairing mode on, show the code and wait for a phone to pair.</source>
        <translation>Active le mode d’association, affiche le code et attend qu’un téléphone s’associe.</translation>
    </message>
    <message>
        <source>Print the app&apos;s log.</source>
        <translation>Affiche le journal de l’application.</translation>
    </message>
    <message>
        <source>List the phones that can log in to this computer.</source>
        <translation>Liste les téléphones qui peuvent se connecter à cet ordinateur.</translation>
    </message>
    <message>
        <source>Take a phone&apos;s key away, by its name or fingerprint.</source>
        <translation>Retire la clé d’un téléphone, par son nom ou son empreinte.</translation>
    </message>
    <message>
        <source>Show the app&apos;s panel (its setup window while that is open).</source>
        <translation>Affiche le panneau de l’application (sa fenêtre de configuration tant qu’elle est ouverte).</translation>
    </message>
    <message>
        <source>Usage: quivractl &lt;command&gt; [options]

Controls the running QuivraMac app.

Commands:
</source>
        <translation>Utilisation&#xa0;: quivractl &lt;command&gt; [options]

Contrôle l’application QuivraMac en cours.

Commandes&#xa0;:
</translation>
    </message>
    <message>
        <source>
Run &quot;quivractl &lt;command&gt; --help&quot; for a command&apos;s options.
</source>
        <translation>
Lancez «&#xa0;quivractl &lt;command&gt; --help&#xa0;» pour les options d’une commande.
</translation>
    </message>
    <message>
        <source>Unknown command &quot;%1&quot;.
</source>
        <translation>Commande inconnue «&#xa0;%1&#xa0;».
</translation>
    </message>
    <message>
        <source>Print the status report a phone receives.</source>
        <translation>Affiche le rapport d’état que reçoit un téléphone.</translation>
    </message>
    <message>
        <source>Keep printing new log lines.</source>
        <translation>Continue d’afficher les nouvelles lignes du journal.</translation>
    </message>
    <message>
        <source>Revoke without asking first.</source>
        <translation>Révoque sans demander confirmation.</translation>
    </message>
    <message>
        <source>The phone&apos;s name or SHA256 fingerprint.</source>
        <translation>Le nom ou l’empreinte SHA256 du téléphone.</translation>
    </message>
    <message>
        <source>Which phone? Give its name or fingerprint (see quivractl devices).
</source>
        <translation>Quel téléphone&#xa0;? Indiquez son nom ou son empreinte (voir quivractl devices).
</translation>
    </message>
    <message>
        <source>Unexpected argument &quot;%1&quot;.
</source>
        <translation>Argument inattendu «&#xa0;%1&#xa0;».
</translation>
    </message>
    <message>
        <source>QuivraMac did not answer.</source>
        <translation>QuivraMac n’a pas répondu.</translation>
    </message>
    <message>
        <source>QuivraMac is running without a display (as the user service, for example), so it has no window to show here. To use it on this desktop, stop that instance and start it again from here: systemctl --user stop quivramac &amp;&amp; quivramac</source>
        <translation>QuivraMac fonctionne sans affichage (comme service utilisateur, par exemple) et n’a donc aucune fenêtre à montrer ici. Pour l’utiliser sur ce bureau, arrêtez cette instance et relancez-la d’ici&#xa0;: systemctl --user stop quivramac &amp;&amp; quivramac</translation>
    </message>
</context>
<context>
    <name>serverfailure</name>
    <message>
        <source>Eternal Terminal (etserver) is not installed</source>
        <translation>Eternal Terminal (etserver) n’est pas installé</translation>
    </message>
    <message>
        <source>etserver could not be started: %1</source>
        <translation>etserver n’a pas pu être démarré&#xa0;: %1</translation>
    </message>
    <message>
        <source>Port %1 is in use</source>
        <translation>Le port %1 est déjà utilisé</translation>
    </message>
    <message>
        <source>%1 belongs to another user</source>
        <translation>%1 appartient à un autre utilisateur</translation>
    </message>
    <message>
        <source>etserver stopped unexpectedly (signal %1)</source>
        <translation>etserver s’est arrêté de façon inattendue (signal %1)</translation>
    </message>
    <message>
        <source>etserver stopped unexpectedly (exit code %1)</source>
        <translation>etserver s’est arrêté de façon inattendue (code de sortie %1)</translation>
    </message>
    <message>
        <source>; QuivraMac gave up restarting it after %1 stops in %2 minutes</source>
        <translation>&#xa0;; QuivraMac a renoncé à le redémarrer après %1 arrêts en %2 minutes</translation>
    </message>
</context>
<context>
    <name>sshrepair</name>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 is a link; set the permissions of what it points to yourself</source>
        <translation>%1 est un lien&#xa0;; réglez vous-même les permissions de sa cible</translation>
    </message>
    <message>
        <source>%1 is not a regular file or folder; move it aside</source>
        <translation>%1 n’est ni un fichier ni un dossier ordinaire&#xa0;; déplacez-le</translation>
    </message>
    <message>
        <source>Cannot open %1</source>
        <translation>Impossible d’ouvrir %1</translation>
    </message>
    <message>
        <source>Cannot inspect %1</source>
        <translation>Impossible d’examiner %1</translation>
    </message>
    <message>
        <source>%1 belongs to someone else (uid %2); it is left as it is</source>
        <translation>%1 appartient à quelqu’un d’autre (uid %2)&#xa0;; il reste tel quel</translation>
    </message>
    <message>
        <source>Cannot change the permissions of %1</source>
        <translation>Impossible de modifier les permissions de %1</translation>
    </message>
    <message>
        <source>Cannot create %1</source>
        <translation>Impossible de créer %1</translation>
    </message>
    <message>
        <source>%1 is not a regular file; move it aside</source>
        <translation>%1 n’est pas un fichier ordinaire&#xa0;; déplacez-le</translation>
    </message>
</context>
<context>
    <name>wording</name>
    <message>
        <source>QuivraMac Setup</source>
        <translation>Configuration de QuivraMac</translation>
    </message>
    <message>
        <source>QuivraMac Settings</source>
        <translation>Paramètres de QuivraMac</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Serveur</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Ordinateur</translation>
    </message>
    <message>
        <source>Your computer, ready for Quivra.</source>
        <translation>Votre ordinateur, prêt pour Quivra.</translation>
    </message>
    <message>
        <source>This app runs quietly in your system tray,
keeping your computer connected to Quivra on iOS.</source>
        <translation>Cette application tourne discrètement dans la zone de notification
et garde votre ordinateur connecté à Quivra sur iOS.</translation>
    </message>
    <message>
        <source>QuivraMac creates a resilient connection
between your iPhone and this computer.</source>
        <translation>QuivraMac crée une connexion robuste
entre votre iPhone et cet ordinateur.</translation>
    </message>
    <message>
        <source>Runs invisibly in the system tray</source>
        <translation>Fonctionne discrètement dans la zone de notification</translation>
    </message>
    <message>
        <source>%1 is now connected to this computer.</source>
        <translation>%1 est maintenant connecté à cet ordinateur.</translation>
    </message>
    <message>
        <source>Checking your computer...</source>
        <translation>Vérification de votre ordinateur…</translation>
    </message>
    <message>
        <source>Your computer accepts secure connections</source>
        <translation>Votre ordinateur accepte les connexions sécurisées</translation>
    </message>
    <message>
        <source>Your computer is on &quot;%1&quot;. Make sure your iPhone is on the same network.</source>
        <translation>Votre ordinateur est sur «&#xa0;%1&#xa0;». Vérifiez que votre iPhone est sur le même réseau.</translation>
    </message>
    <message>
        <source>Your iPhone couldn&apos;t reach this computer.</source>
        <translation>Votre iPhone n’a pas pu joindre cet ordinateur.</translation>
    </message>
    <message>
        <source>SSH Server</source>
        <translation>Serveur SSH</translation>
    </message>
    <message>
        <source>SSH server is installed but not running. Start its service (sshd).</source>
        <translation>Le serveur SSH est installé mais arrêté. Démarrez son service (sshd).</translation>
    </message>
    <message>
        <source>SSH server is installed but not running. Start it with:</source>
        <translation>Le serveur SSH est installé mais arrêté. Démarrez-le avec&#xa0;:</translation>
    </message>
    <message>
        <source>SSH server is not installed. Install it with:</source>
        <translation>Le serveur SSH n’est pas installé. Installez-le avec&#xa0;:</translation>
    </message>
    <message>
        <source>SSH server is not installed. Install and start OpenSSH&apos;s sshd.</source>
        <translation>Le serveur SSH n’est pas installé. Installez et démarrez sshd d’OpenSSH.</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Configuration</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Mac</source>
        <translation>Mac</translation>
    </message>
    <message>
        <source>Your Mac, ready for Quivra.</source>
        <translation>Votre Mac, prêt pour Quivra.</translation>
    </message>
    <message>
        <source>This app runs quietly in your menu bar,
keeping your Mac connected to Quivra on iOS.</source>
        <translation>Cette application tourne discrètement dans la barre des menus
et garde votre Mac connecté à Quivra sur iOS.</translation>
    </message>
    <message>
        <source>QuivraMac creates a resilient connection
between your iPhone and this Mac.</source>
        <translation>QuivraMac crée une connexion robuste
entre votre iPhone et ce Mac.</translation>
    </message>
    <message>
        <source>Runs invisibly in the menu bar</source>
        <translation>Fonctionne discrètement dans la barre des menus</translation>
    </message>
    <message>
        <source>%1 is now connected to this Mac.</source>
        <translation>%1 est maintenant connecté à ce Mac.</translation>
    </message>
    <message>
        <source>Checking your Mac...</source>
        <translation>Vérification de votre Mac…</translation>
    </message>
    <message>
        <source>Your Mac accepts secure connections</source>
        <translation>Votre Mac accepte les connexions sécurisées</translation>
    </message>
    <message>
        <source>Your Mac is on &quot;%1&quot;. Make sure your iPhone is on the same network.</source>
        <translation>Votre Mac est sur «&#xa0;%1&#xa0;». Vérifiez que votre iPhone est sur le même réseau.</translation>
    </message>
    <message>
        <source>Your iPhone couldn&apos;t reach this Mac.</source>
        <translation>Votre iPhone n’a pas pu joindre ce Mac.</translation>
    </message>
    <message>
        <source>Remote Login</source>
        <translation>Session à distance</translation>
    </message>
    <message>
        <source>Remote Login is disabled</source>
        <translation>La session à distance est désactivée</translation>
    </message>
</context>
</TS>
