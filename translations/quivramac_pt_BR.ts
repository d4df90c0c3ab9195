<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR">
<context>
    <name>AskClaudeCard</name>
    <message>
        <source>Ask Claude Code</source>
        <translation>Perguntar ao Claude Code</translation>
    </message>
    <message>
        <source>Copied!</source>
        <translation>Copiado!</translation>
    </message>
    <message>
        <source>Copy to Clipboard</source>
        <translation>Copiar para a área de transferência</translation>
    </message>
</context>
<context>
    <name>CommandField</name>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
</context>
<context>
    <name>DeviceRow</name>
    <message>
        <source>Revoke...</source>
        <translation>Revogar…</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Paired %1</source>
        <translation>Pareado em %1</translation>
    </message>
    <message>
        <source>Revoke “%1”? It will no longer be able to log in to this computer.</source>
        <translation>Revogar “%1”? Ele não poderá mais entrar neste computador.</translation>
    </message>
    <message>
        <source>Revoke</source>
        <translation>Revogar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>DevicesTab</name>
    <message>
        <source>Paired Devices</source>
        <translation>Dispositivos pareados</translation>
    </message>
    <message>
        <source>No phone can log in with a paired key yet.</source>
        <translation>Nenhum telefone pode entrar com uma chave pareada ainda.</translation>
    </message>
</context>
<context>
    <name>ExplanationStep</name>
    <message>
        <source>A bridge that never drops.</source>
        <translation>Uma ponte que nunca cai.</translation>
    </message>
    <message>
        <source>Survives WiFi switches and sleep</source>
        <translation>Resiste a trocas de Wi-Fi e ao modo de repouso</translation>
    </message>
    <message>
        <source>Reconnects automatically</source>
        <translation>Reconecta automaticamente</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
</context>
<context>
    <name>GeneralTab</name>
    <message>
        <source>Server</source>
        <translation>Servidor</translation>
    </message>
    <message>
        <source>Start server automatically</source>
        <translation>Iniciar o servidor automaticamente</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Porta</translation>
    </message>
    <message>
        <source>Local IP</source>
        <translation>IP local</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>Em execução</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Parado</translation>
    </message>
    <message>
        <source>Uptime</source>
        <translation>Tempo ativo</translation>
    </message>
    <message>
        <source>Stop Server</source>
        <translation>Parar servidor</translation>
    </message>
    <message>
        <source>Start Server</source>
        <translation>Iniciar servidor</translation>
    </message>
    <message>
        <source>Server running</source>
        <translation>Servidor em execução</translation>
    </message>
    <message>
        <source>Server stopped</source>
        <translation>Servidor parado</translation>
    </message>
</context>
<context>
    <name>HeaderSection</name>
    <message>
        <source>Port %1</source>
        <translation>Porta %1</translation>
    </message>
    <message>
        <source>Server off</source>
        <translation>Servidor desligado</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Servidor</translation>
    </message>
    <message>
        <source>Server running on port %1</source>
        <translation>Servidor em execução na porta %1</translation>
    </message>
</context>
<context>
    <name>InstallEtSheet</name>
    <message>
        <source>Install Eternal Terminal</source>
        <translation>Instalar o Eternal Terminal</translation>
    </message>
    <message>
        <source>This copy of QuivraMac was built without its own Eternal Terminal server, which keeps your iPhone&apos;s sessions alive. Install Eternal Terminal once: QuivraMac finds its etserver on your PATH.</source>
        <translation>Esta cópia do QuivraMac foi compilada sem o próprio servidor do Eternal Terminal, que mantém as sessões do seu iPhone ativas. Instale o Eternal Terminal uma vez: o QuivraMac encontra o etserver no seu PATH.</translation>
    </message>
    <message>
        <source>1. Run this in a terminal:</source>
        <translation>1. Execute isto em um terminal:</translation>
    </message>
    <message>
        <source>1. Build and install it from source, as the download page describes.</source>
        <translation>1. Compile e instale a partir do código-fonte, como a página de download descreve.</translation>
    </message>
    <message>
        <source>2. Turn on the server with the switch in the QuivraMac panel.</source>
        <translation>2. Ligue o servidor com a chave no painel do QuivraMac.</translation>
    </message>
    <message>
        <source>Open Download Page</source>
        <translation>Abrir página de download</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Concluído</translation>
    </message>
</context>
<context>
    <name>InstallLink</name>
    <message>
        <source>How to install Eternal Terminal...</source>
        <translation>Como instalar o Eternal Terminal…</translation>
    </message>
</context>
<context>
    <name>LogsTab</name>
    <message>
        <source>Server Logs</source>
        <translation>Registros do servidor</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Limpar</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>No logs yet...</source>
        <translation>Nenhum registro ainda…</translation>
    </message>
</context>
<context>
    <name>MenuBarView</name>
    <message>
        <source>How to install Eternal Terminal...</source>
        <translation>Como instalar o Eternal Terminal…</translation>
    </message>
    <message>
        <source>Last paired: %1</source>
        <translation>Último pareado: %1</translation>
    </message>
    <message>
        <source>Setup Assistant...</source>
        <translation>Assistente de configuração…</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Configurações…</translation>
    </message>
    <message>
        <source>Quit QuivraMac</source>
        <translation>Sair do QuivraMac</translation>
    </message>
</context>
<context>
    <name>OnboardingFlow</name>
    <message>
        <source>The code entered on your iPhone didn&apos;t match.</source>
        <translation>O código digitado no seu iPhone não confere.</translation>
    </message>
    <message>
        <source>No device connected within the time limit.</source>
        <translation>Nenhum dispositivo se conectou dentro do tempo limite.</translation>
    </message>
</context>
<context>
    <name>PairingSection</name>
    <message>
        <source>Pair New Device</source>
        <translation>Parear novo dispositivo</translation>
    </message>
    <message>
        <source>Pairing Mode</source>
        <translation>Modo de pareamento</translation>
    </message>
    <message>
        <source>Enter this code in Quivra on your iPhone</source>
        <translation>Digite este código no Quivra do seu iPhone</translation>
    </message>
    <message>
        <source>Stop Pairing</source>
        <translation>Parar pareamento</translation>
    </message>
    <message>
        <source>Time left: %1</source>
        <translation>Tempo restante: %1</translation>
    </message>
    <message>
        <source>Pairing code %1</source>
        <translation>Código de pareamento %1</translation>
    </message>
</context>
<context>
    <name>PairingSession</name>
    <message>
        <source>Someone is guessing the code from %1</source>
        <translation>Alguém está tentando adivinhar o código a partir de %1</translation>
    </message>
    <message numerus="yes">
        <source>Someone is guessing the code from %1 and %n other address(es)</source>
        <translation>
            <numerusform>Alguém está tentando adivinhar o código a partir de %1 e de mais %n endereço</numerusform>
            <numerusform>Alguém está tentando adivinhar o código a partir de %1 e de mais %n endereços</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PairingStep</name>
    <message>
        <source>Open Quivra on your iPhone</source>
        <translation>Abra o Quivra no seu iPhone</translation>
    </message>
    <message>
        <source>Tap &quot;Add Mac&quot;</source>
        <translation>Toque em “Add Mac”</translation>
    </message>
    <message>
        <source>Enter this code:</source>
        <translation>Digite este código:</translation>
    </message>
    <message>
        <source>Expires in %1</source>
        <translation>Expira em %1</translation>
    </message>
    <message>
        <source>Having trouble?</source>
        <translation>Com problemas?</translation>
    </message>
    <message>
        <source>Try manual setup</source>
        <translation>Tentar configuração manual</translation>
    </message>
    <message>
        <source>Exchanging keys...</source>
        <translation>Trocando chaves…</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Tentar novamente</translation>
    </message>
    <message>
        <source>Add this computer by hand</source>
        <translation>Adicionar este computador manualmente</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Pairing code %1</source>
        <translation>Código de pareamento %1</translation>
    </message>
</context>
<context>
    <name>PhoneService</name>
    <message>
        <source>Port %1 is in use, so phones cannot pair</source>
        <translation>A porta %1 está em uso, então os telefones não podem parear</translation>
    </message>
    <message>
        <source>Phones cannot pair: %1</source>
        <translation>Os telefones não podem parear: %1</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>General</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Registros</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Dispositivos</translation>
    </message>
</context>
<context>
    <name>SetupWindow</name>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
</context>
<context>
    <name>SuccessStep</name>
    <message>
        <source>QuivraMac lives here</source>
        <translation>O QuivraMac fica aqui</translation>
    </message>
    <message>
        <source>You&apos;re all set!</source>
        <translation>Tudo pronto!</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>Abrir ao iniciar sessão</translation>
    </message>
    <message>
        <source>Recommended</source>
        <translation>Recomendado</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Concluído</translation>
    </message>
</context>
<context>
    <name>SystemCheck</name>
    <message>
        <source>Looking good!</source>
        <translation>Tudo certo!</translation>
    </message>
    <message>
        <source>Almost there...</source>
        <translation>Quase lá…</translation>
    </message>
    <message>
        <source>SSH Keys</source>
        <translation>Chaves SSH</translation>
    </message>
    <message>
        <source>Ready to authenticate</source>
        <translation>Pronto para autenticar</translation>
    </message>
    <message>
        <source>Quivra Server</source>
        <translation>Servidor do Quivra</translation>
    </message>
    <message>
        <source>Running on port %1</source>
        <translation>Em execução na porta %1</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Rede</translation>
    </message>
    <message>
        <source>Connected at %1</source>
        <translation>Conectado em %1</translation>
    </message>
    <message>
        <source>~/.ssh directory doesn&apos;t exist</source>
        <translation>A pasta ~/.ssh não existe</translation>
    </message>
    <message>
        <source>~/.ssh has wrong permissions</source>
        <translation>~/.ssh tem permissões erradas</translation>
    </message>
    <message>
        <source>authorized_keys has wrong permissions</source>
        <translation>authorized_keys tem permissões erradas</translation>
    </message>
    <message>
        <source>Server couldn&apos;t start</source>
        <translation>O servidor não pôde iniciar</translation>
    </message>
    <message>
        <source>Eternal Terminal is not installed</source>
        <translation>O Eternal Terminal não está instalado</translation>
    </message>
    <message>
        <source>Port %1 is in use</source>
        <translation>A porta %1 está em uso</translation>
    </message>
    <message>
        <source>No network connection</source>
        <translation>Sem conexão de rede</translation>
    </message>
</context>
<context>
    <name>SystemCheckStep</name>
    <message>
        <source>Fix</source>
        <translation>Corrigir</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Tentar novamente</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>aguardando</translation>
    </message>
    <message>
        <source>checking</source>
        <translation>verificando</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>falhou</translation>
    </message>
</context>
<context>
    <name>TrayIcon</name>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Pair New Device</source>
        <translation>Parear novo dispositivo</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Configurações…</translation>
    </message>
    <message>
        <source>Quit QuivraMac</source>
        <translation>Sair do QuivraMac</translation>
    </message>
    <message>
        <source>Server running on port %1</source>
        <translation>Servidor em execução na porta %1</translation>
    </message>
    <message>
        <source>Server not running: %1</source>
        <translation>Servidor parado: %1</translation>
    </message>
    <message>
        <source>Server off</source>
        <translation>Servidor desligado</translation>
    </message>
    <message>
        <source>Setup is not finished yet</source>
        <translation>A configuração ainda não foi concluída</translation>
    </message>
    <message>
        <source>Pairing: the code expires in %1</source>
        <translation>Pareamento: o código expira em %1</translation>
    </message>
</context>
<context>
    <name>UiController</name>
    <message>
        <source>Address: %1
User: %2
SSH port: %3
Eternal Terminal port: %4</source>
        <translation>Endereço: %1
Usuário: %2
Porta SSH: %3
Porta do Eternal Terminal: %4</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; is connecting...</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; está se conectando…</translation>
    </message>
</context>
<context>
    <name>WelcomeStep</name>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
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
        <translation>O endpoint de status não respondeu (%1); o servidor está em execução?</translation>
    </message>
    <message>
        <source>Server:       %1</source>
        <translation>Servidor:     %1</translation>
    </message>
    <message>
        <source>running, up %1</source>
        <translation>em execução há %1</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>parado</translation>
    </message>
    <message>
        <source>Reason:       %1</source>
        <translation>Motivo:       %1</translation>
    </message>
    <message>
        <source>Port:         %1</source>
        <translation>Porta:        %1</translation>
    </message>
    <message>
        <source>Address:      %1</source>
        <translation>Endereço:     %1</translation>
    </message>
    <message>
        <source>Pairing:      %1</source>
        <translation>Pareamento:   %1</translation>
    </message>
    <message>
        <source>on</source>
        <translation>ligado</translation>
    </message>
    <message>
        <source>off</source>
        <translation>desligado</translation>
    </message>
    <message>
        <source>Last paired:  %1</source>
        <translation>Último:       %1</translation>
    </message>
    <message>
        <source>none</source>
        <translation>nenhum</translation>
    </message>
    <message>
        <source>Server running, accepting connections on port %1</source>
        <translation>Servidor em execução, aceitando conexões na porta %1</translation>
    </message>
    <message>
        <source>The server did not start: %1</source>
        <translation>O servidor não iniciou: %1</translation>
    </message>
    <message>
        <source>it stopped; see quivractl logs</source>
        <translation>ele parou; veja quivractl logs</translation>
    </message>
    <message>
        <source>The server is running but port %1 did not accept connections within %2 s; see quivractl logs</source>
        <translation>O servidor está em execução, mas a porta %1 não aceitou conexões em %2 s; veja quivractl logs</translation>
    </message>
    <message>
        <source>The server did not stop within %1 s; see quivractl logs</source>
        <translation>O servidor não parou em %1 s; veja quivractl logs</translation>
    </message>
    <message>
        <source>Server stopped</source>
        <translation>Servidor parado</translation>
    </message>
    <message>
        <source>The server is not running, so no phone can pair. Start it with: quivractl start</source>
        <translation>O servidor não está em execução, então nenhum telefone pode parear. Inicie-o com: quivractl start</translation>
    </message>
    <message>
        <source>The server is not running (%1), so no phone can pair.</source>
        <translation>O servidor não está em execução (%1), então nenhum telefone pode parear.</translation>
    </message>
    <message>
        <source>Pairing code: %1</source>
        <translation>Código de pareamento: %1</translation>
    </message>
    <message>
        <source>Address: %1</source>
        <translation>Endereço: %1</translation>
    </message>
    <message>
        <source>Open Quivra on your iPhone and enter the code. Ctrl-C cancels.</source>
        <translation>Abra o Quivra no seu iPhone e digite o código. Ctrl-C cancela.</translation>
    </message>
    <message>
        <source>Expires in %1</source>
        <translation>Expira em %1</translation>
    </message>
    <message>
        <source>Paired with %1</source>
        <translation>Pareado com %1</translation>
    </message>
    <message>
        <source>The pairing code expired.</source>
        <translation>O código de pareamento expirou.</translation>
    </message>
    <message>
        <source>Pairing mode was switched off.</source>
        <translation>O modo de pareamento foi desligado.</translation>
    </message>
    <message>
        <source>Pairing cancelled.</source>
        <translation>Pareamento cancelado.</translation>
    </message>
    <message>
        <source>No paired phones.</source>
        <translation>Nenhum telefone pareado.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Paired</source>
        <translation>Pareado em</translation>
    </message>
    <message>
        <source>Fingerprint</source>
        <translation>Impressão digital</translation>
    </message>
    <message>
        <source>Revoke &quot;%1&quot;? It will no longer be able to log in to this computer. [y/N] </source>
        <translation>Revogar “%1”? Ele não poderá mais entrar neste computador. [y/N] </translation>
    </message>
    <message>
        <source>Nothing revoked.</source>
        <translation>Nada foi revogado.</translation>
    </message>
    <message>
        <source>No session bus, so QuivraMac cannot be reached. Run quivractl in the same login session as the app.</source>
        <translation>Não há barramento de sessão, então o QuivraMac não pode ser alcançado. Execute o quivractl na mesma sessão que o aplicativo.</translation>
    </message>
    <message>
        <source>QuivraMac is not running. Start it with &quot;quivramac&quot; or &quot;systemctl --user start quivramac&quot;.</source>
        <translation>O QuivraMac não está em execução. Inicie-o com “quivramac” ou “systemctl --user start quivramac”.</translation>
    </message>
    <message>
        <source>QuivraMac did not answer: %1</source>
        <translation>O QuivraMac não respondeu: %1</translation>
    </message>
    <message>
        <source>Show the server (and why it is not running), its address, pairing mode and the last paired phone.</source>
        <translation>Mostra o servidor (e por que ele não está em execução), seu endereço, o modo de pareamento e o último telefone pareado.</translation>
    </message>
    <message>
        <source>Start the Quivra server and wait until it accepts connections (at most 5 s).</source>
        <translation>Inicia o servidor do Quivra e espera até que ele aceite conexões (no máximo 5 s).</translation>
    </message>
    <message>
        <source>Stop the Quivra server.</source>
        <translation>Para o servidor do Quivra.</translation>
    </message>
    <message>
        <source>Switch pairing mode on, show the code and wait for a phone to pair.</source>
        <translation>Liga o modo de pareamento, mostra o código e espera um telefone parear.</translation>
    </message>
    <message>
        <source>Print the app&apos;s log.</source>
        <translation>Mostra o registro do aplicativo.</translation>
    </message>
    <message>
        <source>List the phones that can log in to this computer.</source>
        <translation>Lista os telefones que podem entrar neste computador.</translation>
    </message>
    <message>
        <source>Take a phone&apos;s key away, by its name or fingerprint.</source>
        <translation>Remove a chave de um telefone, pelo nome ou pela impressão digital.</translation>
    </message>
    <message>
        <source>Show the app&apos;s panel (its setup window while that is open).</source>
        <translation>Mostra o painel do aplicativo (a janela de configuração enquanto estiver aberta).</translation>
    </message>
    <message>
        <source>Usage: quivractl &lt;command&gt; [options]

Controls the running QuivraMac app.

Commands:
</source>
        <translation>Uso: quivractl &lt;command&gt; [options]

Controla o aplicativo QuivraMac em execução.

Comandos:
</translation>
    </message>
    <message>
        <source>
Run &quot;quivractl &lt;command&gt; --help&quot; for a command&apos;s options.
</source>
        <translation>
Execute “quivractl &lt;command&gt; --help” para ver as opções de um comando.
</translation>
    </message>
    <message>
        <source>Unknown command &quot;%1&quot;.
</source>
        <translation>Comando desconhecido “%1”.
</translation>
    </message>
    <message>
        <source>Print the status report a phone receives.</source>
        <translation>Mostra o relatório de status que um telefone recebe.</translation>
    </message>
    <message>
        <source>Keep printing new log lines.</source>
        <translation>Continua mostrando as novas linhas do registro.</translation>
    </message>
    <message>
        <source>Revoke without asking first.</source>
        <translation>Revoga sem perguntar antes.</translation>
    </message>
    <message>
        <source>The phone&apos;s name or SHA256 fingerprint.</source>
        <translation>O nome ou a impressão digital SHA256 do telefone.</translation>
    </message>
    <message>
        <source>Which phone? Give its name or fingerprint (see quivractl devices).
</source>
        <translation>Qual telefone? Informe o nome ou a impressão digital (veja quivractl devices).
</translation>
    </message>
    <message>
        <source>Unexpected argument &quot;%1&quot;.
</source>
        <translation>Argumento inesperado “%1”.
</translation>
    </message>
    <message>
        <source>QuivraMac did not answer.</source>
        <translation>O QuivraMac não respondeu.</translation>
    </message>
    <message>
        <source>QuivraMac is running without a display (as the user service, for example), so it has no window to show here. To use it on this desktop, stop that instance and start it again from here: systemctl --user stop quivramac &amp;&amp; quivramac</source>
        <translation>O QuivraMac está em execução sem tela (como serviço do usuário, por exemplo), então não tem janela para mostrar aqui. Para usá-lo nesta área de trabalho, pare essa instância e inicie-o novamente daqui: systemctl --user stop quivramac &amp;&amp; quivramac</translation>
    </message>
</context>
<context>
    <name>serverfailure</name>
    <message>
        <source>Eternal Terminal (etserver) is not installed</source>
        <translation>O Eternal Terminal (etserver) não está instalado</translation>
    </message>
    <message>
        <source>etserver could not be started: %1</source>
        <translation>Não foi possível iniciar o etserver: %1</translation>
    </message>
    <message>
        <source>Port %1 is in use</source>
        <translation>A porta %1 está em uso</translation>
    </message>
    <message>
        <source>%1 belongs to another user</source>
        <translation>%1 pertence a outro usuário</translation>
    </message>
    <message>
        <source>etserver stopped unexpectedly (signal %1)</source>
        <translation>O etserver parou inesperadamente (sinal %1)</translation>
    </message>
    <message>
        <source>etserver stopped unexpectedly (exit code %1)</source>
        <translation>O etserver parou inesperadamente (código de saída %1)</translation>
    </message>
    <message>
        <source>; QuivraMac gave up restarting it after %1 stops in %2 minutes</source>
        <translation>; o QuivraMac desistiu de reiniciá-lo após %1 paradas em %2 minutos</translation>
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
        <translation>%1 é um link; ajuste você mesmo as permissões do destino</translation>
    </message>
    <message>
        <source>%1 is not a regular file or folder; move it aside</source>
        <translation>%1 não é um arquivo nem uma pasta comum; mova-o para outro lugar</translation>
    </message>
    <message>
        <source>Cannot open %1</source>
        <translation>Não é possível abrir %1</translation>
    </message>
    <message>
        <source>Cannot inspect %1</source>
        <translation>Não é possível examinar %1</translation>
    </message>
    <message>
        <source>%1 belongs to someone else (uid %2); it is left as it is</source>
        <translation>%1 pertence a outra pessoa (uid %2); ele fica como está</translation>
    </message>
    <message>
        <source>Cannot change the permissions of %1</source>
        <translation>Não é possível alterar as permissões de %1</translation>
    </message>
    <message>
        <source>Cannot create %1</source>
        <translation>Não é possível criar %1</translation>
    </message>
    <message>
        <source>%1 is not a regular file; move it aside</source>
        <translation>%1 não é um arquivo comum; mova-o para outro lugar</translation>
    </message>
</context>
<context>
    <name>wording</name>
    <message>
        <source>QuivraMac Setup</source>
        <translation>Configuração do QuivraMac</translation>
    </message>
    <message>
        <source>QuivraMac Settings</source>
        <translation>Configurações do QuivraMac</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Servidor</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computador</translation>
    </message>
    <message>
        <source>Your computer, ready for Quivra.</source>
        <translation>Seu computador, pronto para o Quivra.</translation>
    </message>
    <message>
        <source>This app runs quietly in your system tray,
keeping your computer connected to Quivra on iOS.</source>
        <translation>Este aplicativo roda discretamente na bandeja do sistema,
mantendo seu computador conectado ao Quivra no iOS.</translation>
    </message>
    <message>
        <source>QuivraMac creates a resilient connection
between your iPhone and this computer.</source>
        <translation>O QuivraMac cria uma conexão resistente
entre seu iPhone e este computador.</translation>
    </message>
    <message>
        <source>Runs invisibly in the system tray</source>
        <translation>Roda de forma invisível na bandeja do sistema</translation>
    </message>
    <message>
        <source>%1 is now connected to this computer.</source>
        <translation>%1 agora está conectado a este computador.</translation>
    </message>
    <message>
        <source>Checking your computer...</source>
        <translation>Verificando seu computador…</translation>
    </message>
    <message>
        <source>Your computer accepts secure connections</source>
        <translation>Seu computador aceita conexões seguras</translation>
    </message>
    <message>
        <source>Your computer is on &quot;%1&quot;. Make sure your iPhone is on the same network.</source>
        <translation>Seu computador está em “%1”. Verifique se o seu iPhone está na mesma rede.</translation>
    </message>
    <message>
        <source>Your iPhone couldn&apos;t reach this computer.</source>
        <translation>Seu iPhone não conseguiu alcançar este computador.</translation>
    </message>
    <message>
        <source>SSH Server</source>
        <translation>Servidor SSH</translation>
    </message>
    <message>
        <source>SSH server is installed but not running. Start its service (sshd).</source>
        <translation>O servidor SSH está instalado, mas não está em execução. Inicie o serviço (sshd).</translation>
    </message>
    <message>
        <source>SSH server is installed but not running. Start it with:</source>
        <translation>O servidor SSH está instalado, mas não está em execução. Inicie-o com:</translation>
    </message>
    <message>
        <source>SSH server is not installed. Install it with:</source>
        <translation>O servidor SSH não está instalado. Instale-o com:</translation>
    </message>
    <message>
        <source>SSH server is not installed. Install and start OpenSSH&apos;s sshd.</source>
        <translation>O servidor SSH não está instalado. Instale e inicie o sshd do OpenSSH.</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Configuração</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
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
        <translation>Seu Mac, pronto para o Quivra.</translation>
    </message>
    <message>
        <source>This app runs quietly in your menu bar,
keeping your Mac connected to Quivra on iOS.</source>
        <translation>Este aplicativo roda discretamente na barra de menus,
mantendo seu Mac conectado ao Quivra no iOS.</translation>
    </message>
    <message>
        <source>QuivraMac creates a resilient connection
between your iPhone and this Mac.</source>
        <translation>O QuivraMac cria uma conexão resistente
entre seu iPhone e este Mac.</translation>
    </message>
    <message>
        <source>Runs invisibly in the menu bar</source>
        <translation>Roda de forma invisível na barra de menus</translation>
    </message>
    <message>
        <source>%1 is now connected to this Mac.</source>
        <translation>%1 agora está conectado a este Mac.</translation>
    </message>
    <message>
        <source>Checking your Mac...</source>
        <translation>Verificando seu Mac…</translation>
    </message>
    <message>
        <source>Your Mac accepts secure connections</source>
        <translation>Seu Mac aceita conexões seguras</translation>
    </message>
    <message>
        <source>Your Mac is on &quot;%1&quot;. Make sure your iPhone is on the same network.</source>
        <translation>Seu Mac está em “%1”. Verifique se o seu iPhone está na mesma rede.</translation>
    </message>
    <message>
        <source>Your iPhone couldn&apos;t reach this Mac.</source>
        <translation>Seu iPhone não conseguiu alcançar este Mac.</translation>
    </message>
    <message>
        <source>Remote Login</source>
        <translation>Sessão Remota</translation>
    </message>
    <message>
        <source>Remote Login is disabled</source>
        <translation>A Sessão Remota está desativada</translation>
    </message>
</context>
</TS>
