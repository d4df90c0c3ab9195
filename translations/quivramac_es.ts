<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>AskClaudeCard</name>
    <message>
        <source>Ask Claude Code</source>
        <translation>Preguntar a Claude Code</translation>
    </message>
    <message>
        <source>Copied!</source>
        <translation>¡Copiado!</translation>
    </message>
    <message>
        <source>Copy to Clipboard</source>
        <translation>Copiar al portapapeles</translation>
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
        <translation>Revocar…</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Paired %1</source>
        <translation>Vinculado el %1</translation>
    </message>
    <message>
        <source>Revoke “%1”? It will no longer be able to log in to this computer.</source>
        <translation>¿Revocar «%1»? Ya no podrá iniciar sesión en este equipo.</translation>
    </message>
    <message>
        <source>Revoke</source>
        <translation>Revocar</translation>
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
        <translation>Dispositivos vinculados</translation>
    </message>
    <message>
        <source>No phone can log in with a paired key yet.</source>
        <translation>Todavía ningún teléfono puede iniciar sesión con una clave vinculada.</translation>
    </message>
</context>
<context>
    <name>ExplanationStep</name>
    <message>
        <source>A bridge that never drops.</source>
        <translation>Un puente que nunca se cae.</translation>
    </message>
    <message>
        <source>Survives WiFi switches and sleep</source>
        <translation>Resiste a cambios de Wi-Fi y a la suspensión</translation>
    </message>
    <message>
        <source>Reconnects automatically</source>
        <translation>Se reconecta automáticamente</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
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
        <translation>Iniciar el servidor automáticamente</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Puerto</translation>
    </message>
    <message>
        <source>Local IP</source>
        <translation>IP local</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>En ejecución</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Detenido</translation>
    </message>
    <message>
        <source>Uptime</source>
        <translation>Tiempo activo</translation>
    </message>
    <message>
        <source>Stop Server</source>
        <translation>Detener servidor</translation>
    </message>
    <message>
        <source>Start Server</source>
        <translation>Iniciar servidor</translation>
    </message>
    <message>
        <source>Server running</source>
        <translation>Servidor en marcha</translation>
    </message>
    <message>
        <source>Server stopped</source>
        <translation>Servidor detenido</translation>
    </message>
</context>
<context>
    <name>HeaderSection</name>
    <message>
        <source>Port %1</source>
        <translation>Puerto %1</translation>
    </message>
    <message>
        <source>Server off</source>
        <translation>Servidor apagado</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Servidor</translation>
    </message>
    <message>
        <source>Server running on port %1</source>
        <translation>Servidor en marcha en el puerto %1</translation>
    </message>
</context>
<context>
    <name>InstallEtSheet</name>
    <message>
        <source>Install Eternal Terminal</source>
        <translation>Instalar Eternal Terminal</translation>
    </message>
    <message>
        <source>This copy of QuivraMac was built without its own Eternal Terminal server, which keeps your iPhone&apos;s sessions alive. Install Eternal Terminal once: QuivraMac finds its etserver on your PATH.</source>
        <translation>Esta copia de QuivraMac se compiló sin su propio servidor de Eternal Terminal, que mantiene activas las sesiones de tu iPhone. Instala Eternal Terminal una vez: QuivraMac encontrará su etserver en tu PATH.</translation>
    </message>
    <message>
        <source>1. Run this in a terminal:</source>
        <translation>1. Ejecuta esto en una terminal:</translation>
    </message>
    <message>
        <source>1. Build and install it from source, as the download page describes.</source>
        <translation>1. Compílalo e instálalo desde el código fuente, como describe la página de descarga.</translation>
    </message>
    <message>
        <source>2. Turn on the server with the switch in the QuivraMac panel.</source>
        <translation>2. Activa el servidor con el interruptor del panel de QuivraMac.</translation>
    </message>
    <message>
        <source>Open Download Page</source>
        <translation>Abrir la página de descarga</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Listo</translation>
    </message>
</context>
<context>
    <name>InstallLink</name>
    <message>
        <source>How to install Eternal Terminal...</source>
        <translation>Cómo instalar Eternal Terminal…</translation>
    </message>
</context>
<context>
    <name>LogsTab</name>
    <message>
        <source>Server Logs</source>
        <translation>Registros del servidor</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>No logs yet...</source>
        <translation>Aún no hay registros…</translation>
    </message>
</context>
<context>
    <name>MenuBarView</name>
    <message>
        <source>How to install Eternal Terminal...</source>
        <translation>Cómo instalar Eternal Terminal…</translation>
    </message>
    <message>
        <source>Last paired: %1</source>
        <translation>Último vinculado: %1</translation>
    </message>
    <message>
        <source>Setup Assistant...</source>
        <translation>Asistente de configuración…</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Configuración…</translation>
    </message>
    <message>
        <source>Quit QuivraMac</source>
        <translation>Salir de QuivraMac</translation>
    </message>
</context>
<context>
    <name>OnboardingFlow</name>
    <message>
        <source>The code entered on your iPhone didn&apos;t match.</source>
        <translation>El código introducido en tu iPhone no coincide.</translation>
    </message>
    <message>
        <source>No device connected within the time limit.</source>
        <translation>Ningún dispositivo se conectó dentro del tiempo límite.</translation>
    </message>
</context>
<context>
    <name>PairingSection</name>
    <message>
        <source>Pair New Device</source>
        <translation>Vincular nuevo dispositivo</translation>
    </message>
    <message>
        <source>Pairing Mode</source>
        <translation>Modo de vinculación</translation>
    </message>
    <message>
        <source>Enter this code in Quivra on your iPhone</source>
        <translation>Introduce este código en Quivra en tu iPhone</translation>
    </message>
    <message>
        <source>Stop Pairing</source>
        <translation>Detener vinculación</translation>
    </message>
    <message>
        <source>Time left: %1</source>
        <translation>Tiempo restante: %1</translation>
    </message>
    <message>
        <source>Pairing code %1</source>
        <translation>Código de vinculación %1</translation>
    </message>
</context>
<context>
    <name>PairingSession</name>
    <message>
        <source>Someone is guessing the code from %1</source>
        <translation>Alguien está intentando adivinar el código desde %1</translation>
    </message>
    <message numerus="yes">
        <source>Someone is guessing the code from %1 and %n other address(es)</source>
        <translation>
            <numerusform>Alguien está intentando adivinar el código desde %1 y %n dirección más</numerusform>
            <numerusform>Alguien está intentando adivinar el código desde %1 y %n direcciones más</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PairingStep</name>
    <message>
        <source>Open Quivra on your iPhone</source>
        <translation>Abre Quivra en tu iPhone</translation>
    </message>
    <message>
        <source>Tap &quot;Add Mac&quot;</source>
        <translation>Toca «Add Mac»</translation>
    </message>
    <message>
        <source>Enter this code:</source>
        <translation>Introduce este código:</translation>
    </message>
    <message>
        <source>Expires in %1</source>
        <translation>Caduca en %1</translation>
    </message>
    <message>
        <source>Having trouble?</source>
        <translation>¿Tienes problemas?</translation>
    </message>
    <message>
        <source>Try manual setup</source>
        <translation>Probar la configuración manual</translation>
    </message>
    <message>
        <source>Exchanging keys...</source>
        <translation>Intercambiando claves…</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>Add this computer by hand</source>
        <translation>Añadir este equipo a mano</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Pairing code %1</source>
        <translation>Código de vinculación %1</translation>
    </message>
</context>
<context>
    <name>PhoneService</name>
    <message>
        <source>Port %1 is in use, so phones cannot pair</source>
        <translation>El puerto %1 está en uso, así que los teléfonos no pueden vincularse</translation>
    </message>
    <message>
        <source>Phones cannot pair: %1</source>
        <translation>Los teléfonos no pueden vincularse: %1</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>General</source>
        <translation>General</translation>
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
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>SuccessStep</name>
    <message>
        <source>QuivraMac lives here</source>
        <translation>QuivraMac vive aquí</translation>
    </message>
    <message>
        <source>You&apos;re all set!</source>
        <translation>¡Todo listo!</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>Abrir al iniciar sesión</translation>
    </message>
    <message>
        <source>Recommended</source>
        <translation>Recomendado</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Listo</translation>
    </message>
</context>
<context>
    <name>SystemCheck</name>
    <message>
        <source>Looking good!</source>
        <translation>¡Todo bien!</translation>
    </message>
    <message>
        <source>Almost there...</source>
        <translation>Casi listo…</translation>
    </message>
    <message>
        <source>SSH Keys</source>
        <translation>Claves SSH</translation>
    </message>
    <message>
        <source>Ready to authenticate</source>
        <translation>Listo para autenticar</translation>
    </message>
    <message>
        <source>Quivra Server</source>
        <translation>Servidor de Quivra</translation>
    </message>
    <message>
        <source>Running on port %1</source>
        <translation>En ejecución en el puerto %1</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>Connected at %1</source>
        <translation>Conectado en %1</translation>
    </message>
    <message>
        <source>~/.ssh directory doesn&apos;t exist</source>
        <translation>La carpeta ~/.ssh no existe</translation>
    </message>
    <message>
        <source>~/.ssh has wrong permissions</source>
        <translation>~/.ssh tiene permisos incorrectos</translation>
    </message>
    <message>
        <source>authorized_keys has wrong permissions</source>
        <translation>authorized_keys tiene permisos incorrectos</translation>
    </message>
    <message>
        <source>Server couldn&apos;t start</source>
        <translation>El servidor no pudo iniciarse</translation>
    </message>
    <message>
        <source>Eternal Terminal is not installed</source>
        <translation>Eternal Terminal no está instalado</translation>
    </message>
    <message>
        <source>Port %1 is in use</source>
        <translation>El puerto %1 está en uso</translation>
    </message>
    <message>
        <source>No network connection</source>
        <translation>Sin conexión de red</translation>
    </message>
</context>
<context>
    <name>SystemCheckStep</name>
    <message>
        <source>Fix</source>
        <translation>Reparar</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>en espera</translation>
    </message>
    <message>
        <source>checking</source>
        <translation>comprobando</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>error</translation>
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
        <translation>Vincular nuevo dispositivo</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Configuración…</translation>
    </message>
    <message>
        <source>Quit QuivraMac</source>
        <translation>Salir de QuivraMac</translation>
    </message>
    <message>
        <source>Server running on port %1</source>
        <translation>Servidor en ejecución en el puerto %1</translation>
    </message>
    <message>
        <source>Server not running: %1</source>
        <translation>El servidor no está en ejecución: %1</translation>
    </message>
    <message>
        <source>Server off</source>
        <translation>Servidor apagado</translation>
    </message>
    <message>
        <source>Setup is not finished yet</source>
        <translation>La configuración aún no ha terminado</translation>
    </message>
    <message>
        <source>Pairing: the code expires in %1</source>
        <translation>Vinculación: el código caduca en %1</translation>
    </message>
</context>
<context>
    <name>UiController</name>
    <message>
        <source>Address: %1
User: %2
SSH port: %3
Eternal Terminal port: %4</source>
        <translation>Dirección: %1
Usuario: %2
Puerto SSH: %3
Puerto de Eternal Terminal: %4</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; is connecting...</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; se está conectando…</translation>
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
        <translation>El punto de estado no respondió (%1); ¿está en ejecución el servidor?</translation>
    </message>
    <message>
        <source>Server:       %1</source>
        <translation>Servidor:     %1</translation>
    </message>
    <message>
        <source>running, up %1</source>
        <translation>en ejecución desde hace %1</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>detenido</translation>
    </message>
    <message>
        <source>Reason:       %1</source>
        <translation>Motivo:       %1</translation>
    </message>
    <message>
        <source>Port:         %1</source>
        <translation>Puerto:       %1</translation>
    </message>
    <message>
        <source>Address:      %1</source>
        <translation>Dirección:    %1</translation>
    </message>
    <message>
        <source>Pairing:      %1</source>
        <translation>Vinculación:  %1</translation>
    </message>
    <message>
        <source>on</source>
        <translation>activado</translation>
    </message>
    <message>
        <source>off</source>
        <translation>desactivado</translation>
    </message>
    <message>
        <source>Last paired:  %1</source>
        <translation>Último:       %1</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguno</translation>
    </message>
    <message>
        <source>Server running, accepting connections on port %1</source>
        <translation>Servidor en ejecución, acepta conexiones en el puerto %1</translation>
    </message>
    <message>
        <source>The server did not start: %1</source>
        <translation>El servidor no se inició: %1</translation>
    </message>
    <message>
        <source>it stopped; see quivractl logs</source>
        <translation>se detuvo; consulta quivractl logs</translation>
    </message>
    <message>
        <source>The server is running but port %1 did not accept connections within %2 s; see quivractl logs</source>
        <translation>El servidor está en ejecución, pero el puerto %1 no aceptó conexiones en %2 s; consulta quivractl logs</translation>
    </message>
    <message>
        <source>The server did not stop within %1 s; see quivractl logs</source>
        <translation>El servidor no se detuvo en %1 s; consulta quivractl logs</translation>
    </message>
    <message>
        <source>Server stopped</source>
        <translation>Servidor detenido</translation>
    </message>
    <message>
        <source>The server is not running, so no phone can pair. Start it with: quivractl start</source>
        <translation>El servidor no está en ejecución, así que ningún teléfono puede vincularse. Inícialo con: quivractl start</translation>
    </message>
    <message>
        <source>The server is not running (%1), so no phone can pair.</source>
        <translation>El servidor no está en ejecución (%1), así que ningún teléfono puede vincularse.</translation>
    </message>
    <message>
        <source>Pairing code: %1</source>
        <translation>Código de vinculación: %1</translation>
    </message>
    <message>
        <source>Address: %1</source>
        <translation>Dirección: %1</translation>
    </message>
    <message>
        <source>Open Quivra on your iPhone and enter the code. Ctrl-C cancels.</source>
        <translation>Abre Quivra en tu iPhone e introduce el código. Ctrl-C cancela.</translation>
    </message>
    <message>
        <source>Expires in %1</source>
        <translation>Caduca en %1</translation>
    </message>
    <message>
        <source>Paired with %1</source>
        <translation>Vinculado con %1</translation>
    </message>
    <message>
        <source>The pairing code expired.</source>
        <translation>El código de vinculación caducó.</translation>
    </message>
    <message>
        <source>Pairing mode was switched off.</source>
        <translation>Se desactivó el modo de vinculación.</translation>
    </message>
    <message>
        <source>Pairing cancelled.</source>
        <translation>Vinculación cancelada.</translation>
    </message>
    <message>
        <source>No paired phones.</source>
        <translation>No hay teléfonos vinculados.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Paired</source>
        <translation>Vinculado</translation>
    </message>
    <message>
        <source>Fingerprint</source>
        <translation>Huella</translation>
    </message>
    <message>
        <source>Revoke &quot;%1&quot;? It will no longer be able to log in to this computer. [y/N] </source>
        <translation>¿Revocar «%1»? Ya no podrá iniciar sesión en este equipo. [y/N] </translation>
    </message>
    <message>
        <source>Nothing revoked.</source>
        <translation>No se revocó nada.</translation>
    </message>
    <message>
        <source>No session bus, so QuivraMac cannot be reached. Run quivractl in the same login session as the app.</source>
        <translation>No hay bus de sesión, así que no se puede contactar con QuivraMac. Ejecuta quivractl en la misma sesión que la aplicación.</translation>
    </message>
    <message>
        <source>QuivraMac is not running. Start it with &quot;quivramac&quot; or &quot;systemctl --user start quivramac&quot;.</source>
        <translation>QuivraMac no se está ejecutando. Inícialo con «quivramac» o «systemctl --user start quivramac».</translation>
    </message>
    <message>
        <source>QuivraMac did not answer: %1</source>
        <translation>QuivraMac no respondió: %1</translation>
    </message>
    <message>
        <source>Show the server (and why it is not running), its address, pairing mode and the last paired phone.</source>
        <translation>Muestra el servidor (y por qué no está en ejecución), su dirección, el modo de vinculación y el último teléfono vinculado.</translation>
    </message>
    <message>
        <source>Start the Quivra server and wait until it accepts connections (at most 5 s).</source>
        <translation>Inicia el servidor de Quivra y espera a que acepte conexiones (5 s como máximo).</translation>
    </message>
    <message>
        <source>Stop the Quivra server.</source>
        <translation>Detiene el servidor de Quivra.</translation>
    </message>
    <message>
        <source>Switch pairing mode on, show the code and wait for a phone to pair.</source>
        <translation>Activa el modo de vinculación, muestra el código y espera a que se vincule un teléfono.</translation>
    </message>
    <message>
        <source>Print the app&apos;s log.</source>
        <translation>Muestra el registro de la aplicación.</translation>
    </message>
    <message>
        <source>List the phones that can log in to this computer.</source>
        <translation>Lista los teléfonos que pueden iniciar sesión en este equipo.</translation>
    </message>
    <message>
        <source>Take a phone&apos;s key away, by its name or fingerprint.</source>
        <translation>Retira la clave de un teléfono, por su nombre o huella.</translation>
    </message>
    <message>
        <source>Show the app&apos;s panel (its setup window while that is open).</source>
        <translation>Muestra el panel de la aplicación (su ventana de configuración mientras esté abierta).</translation>
    </message>
    <message>
        <source>Usage: quivractl &lt;command&gt; [options]

Controls the running QuivraMac app.

Commands:
</source>
        <translation>Uso: quivractl &lt;command&gt; [options]

Controla la aplicación QuivraMac en ejecución.

Órdenes:
</translation>
    </message>
    <message>
        <source>
Run &quot;quivractl &lt;command&gt; --help&quot; for a command&apos;s options.
</source>
        <translation>
Ejecuta «quivractl &lt;command&gt; --help» para ver las opciones de una orden.
</translation>
    </message>
    <message>
        <source>Unknown command &quot;%1&quot;.
</source>
        <translation>Orden desconocida «%1».
</translation>
    </message>
    <message>
        <source>Print the status report a phone receives.</source>
        <translation>Muestra el informe de estado que recibe un teléfono.</translation>
    </message>
    <message>
        <source>Keep printing new log lines.</source>
        <translation>Sigue mostrando las nuevas líneas del registro.</translation>
    </message>
    <message>
        <source>Revoke without asking first.</source>
        <translation>Revoca sin preguntar antes.</translation>
    </message>
    <message>
        <source>The phone&apos;s name or SHA256 fingerprint.</source>
        <translation>El nombre o la huella SHA256 del teléfono.</translation>
    </message>
    <message>
        <source>Which phone? Give its name or fingerprint (see quivractl devices).
</source>
        <translation>¿Qué teléfono? Indica su nombre o su huella (consulta quivractl devices).
</translation>
    </message>
    <message>
        <source>Unexpected argument &quot;%1&quot;.
</source>
        <translation>Argumento inesperado «%1».
</translation>
    </message>
    <message>
        <source>QuivraMac did not answer.</source>
        <translation>QuivraMac no respondió.</translation>
    </message>
    <message>
        <source>QuivraMac is running without a display (as the user service, for example), so it has no window to show here. To use it on this desktop, stop that instance and start it again from here: systemctl --user stop quivramac &amp;&amp; quivramac</source>
        <translation>QuivraMac se está ejecutando sin pantalla (como servicio de usuario, por ejemplo), así que no tiene ninguna ventana que mostrar aquí. Para usarlo en este escritorio, detén esa instancia y vuelve a iniciarlo desde aquí: systemctl --user stop quivramac &amp;&amp; quivramac</translation>
    </message>
</context>
<context>
    <name>serverfailure</name>
    <message>
        <source>Eternal Terminal (etserver) is not installed</source>
        <translation>Eternal Terminal (etserver) no está instalado</translation>
    </message>
    <message>
        <source>etserver could not be started: %1</source>
        <translation>No se pudo iniciar etserver: %1</translation>
    </message>
    <message>
        <source>Port %1 is in use</source>
        <translation>El puerto %1 está en uso</translation>
    </message>
    <message>
        <source>%1 belongs to another user</source>
        <translation>%1 pertenece a otro usuario</translation>
    </message>
    <message>
        <source>etserver stopped unexpectedly (signal %1)</source>
        <translation>etserver se detuvo inesperadamente (señal %1)</translation>
    </message>
    <message>
        <source>etserver stopped unexpectedly (exit code %1)</source>
        <translation>etserver se detuvo inesperadamente (código de salida %1)</translation>
    </message>
    <message>
        <source>; QuivraMac gave up restarting it after %1 stops in %2 minutes</source>
        <translation>; QuivraMac dejó de reiniciarlo tras %1 paradas en %2 minutos</translation>
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
        <translation>%1 es un enlace; ajusta tú mismo los permisos de su destino</translation>
    </message>
    <message>
        <source>%1 is not a regular file or folder; move it aside</source>
        <translation>%1 no es un archivo ni una carpeta normal; muévelo a otro sitio</translation>
    </message>
    <message>
        <source>Cannot open %1</source>
        <translation>No se puede abrir %1</translation>
    </message>
    <message>
        <source>Cannot inspect %1</source>
        <translation>No se puede examinar %1</translation>
    </message>
    <message>
        <source>%1 belongs to someone else (uid %2); it is left as it is</source>
        <translation>%1 pertenece a otra persona (uid %2); se deja como está</translation>
    </message>
    <message>
        <source>Cannot change the permissions of %1</source>
        <translation>No se pueden cambiar los permisos de %1</translation>
    </message>
    <message>
        <source>Cannot create %1</source>
        <translation>No se puede crear %1</translation>
    </message>
    <message>
        <source>%1 is not a regular file; move it aside</source>
        <translation>%1 no es un archivo normal; muévelo a otro sitio</translation>
    </message>
</context>
<context>
    <name>wording</name>
    <message>
        <source>QuivraMac Setup</source>
        <translation>Configuración de QuivraMac</translation>
    </message>
    <message>
        <source>QuivraMac Settings</source>
        <translation>Ajustes de QuivraMac</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Servidor</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Equipo</translation>
    </message>
    <message>
        <source>Your computer, ready for Quivra.</source>
        <translation>Tu equipo, listo para Quivra.</translation>
    </message>
    <message>
        <source>This app runs quietly in your system tray,
keeping your computer connected to Quivra on iOS.</source>
        <translation>Esta aplicación se ejecuta discretamente en la bandeja del sistema
y mantiene tu equipo conectado a Quivra en iOS.</translation>
    </message>
    <message>
        <source>QuivraMac creates a resilient connection
between your iPhone and this computer.</source>
        <translation>QuivraMac crea una conexión resistente
entre tu iPhone y este equipo.</translation>
    </message>
    <message>
        <source>Runs invisibly in the system tray</source>
        <translation>Se ejecuta de forma invisible en la bandeja del sistema</translation>
    </message>
    <message>
        <source>%1 is now connected to this computer.</source>
        <translation>%1 ya está conectado a este equipo.</translation>
    </message>
    <message>
        <source>Checking your computer...</source>
        <translation>Comprobando tu equipo…</translation>
    </message>
    <message>
        <source>Your computer accepts secure connections</source>
        <translation>Tu equipo acepta conexiones seguras</translation>
    </message>
    <message>
        <source>Your computer is on &quot;%1&quot;. Make sure your iPhone is on the same network.</source>
        <translation>Tu equipo está en «%1». Asegúrate de que tu iPhone esté en la misma red.</translation>
    </message>
    <message>
        <source>Your iPhone couldn&apos;t reach this computer.</source>
        <translation>Tu iPhone no pudo llegar a este equipo.</translation>
    </message>
    <message>
        <source>SSH Server</source>
        <translation>Servidor SSH</translation>
    </message>
    <message>
        <source>SSH server is installed but not running. Start its service (sshd).</source>
        <translation>El servidor SSH está instalado pero no en ejecución. Inicia su servicio (sshd).</translation>
    </message>
    <message>
        <source>SSH server is installed but not running. Start it with:</source>
        <translation>El servidor SSH está instalado pero no en ejecución. Inícialo con:</translation>
    </message>
    <message>
        <source>SSH server is not installed. Install it with:</source>
        <translation>El servidor SSH no está instalado. Instálalo con:</translation>
    </message>
    <message>
        <source>SSH server is not installed. Install and start OpenSSH&apos;s sshd.</source>
        <translation>El servidor SSH no está instalado. Instala e inicia el sshd de OpenSSH.</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Mac</source>
        <translation>Mac</translation>
    </message>
    <message>
        <source>Your Mac, ready for Quivra.</source>
        <translation>Tu Mac, listo para Quivra.</translation>
    </message>
    <message>
        <source>This app runs quietly in your menu bar,
keeping your Mac connected to Quivra on iOS.</source>
        <translation>Esta aplicación se ejecuta discretamente en la barra de menús
y mantiene tu Mac conectado a Quivra en iOS.</translation>
    </message>
    <message>
        <source>QuivraMac creates a resilient connection
between your iPhone and this Mac.</source>
        <translation>QuivraMac crea una conexión resistente
entre tu iPhone y este Mac.</translation>
    </message>
    <message>
        <source>Runs invisibly in the menu bar</source>
        <translation>Se ejecuta de forma invisible en la barra de menús</translation>
    </message>
    <message>
        <source>%1 is now connected to this Mac.</source>
        <translation>%1 ya está conectado a este Mac.</translation>
    </message>
    <message>
        <source>Checking your Mac...</source>
        <translation>Comprobando tu Mac…</translation>
    </message>
    <message>
        <source>Your Mac accepts secure connections</source>
        <translation>Tu Mac acepta conexiones seguras</translation>
    </message>
    <message>
        <source>Your Mac is on &quot;%1&quot;. Make sure your iPhone is on the same network.</source>
        <translation>Tu Mac está en «%1». Asegúrate de que tu iPhone esté en la misma red.</translation>
    </message>
    <message>
        <source>Your iPhone couldn&apos;t reach this Mac.</source>
        <translation>Tu iPhone no pudo llegar a este Mac.</translation>
    </message>
    <message>
        <source>Remote Login</source>
        <translation>Sesión remota</translation>
    </message>
    <message>
        <source>Remote Login is disabled</source>
        <translation>La sesión remota está desactivada</translation>
    </message>
</context>
</TS>
