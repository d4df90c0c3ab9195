#pragma once

#include "app/quivramacapp.h"
#include "control/pairingnotifier.h"
#include "latenessprobe.h"

#include <memory>
#include <optional>

// What every launch does once its application object exists, with windows or without: names
// the application, claims the single-instance name on the session bus and builds the app
// object, which starts the server. When another instance already runs, it hands over to that
// one and this launch ends (exitCode()).
class Instance
{
public:
    explicit Instance(bool hasDisplay);
    ~Instance();

    std::optional<int> exitCode() const { return m_exitCode; }
    QuivraMacApp &app() { return *m_app; }
    ServerManager &manager() { return m_app->serverManager(); }

private:
    std::optional<int> m_exitCode;
    std::unique_ptr<LatenessProbe> m_lateness;
    std::unique_ptr<QuivraMacApp> m_app;
    std::unique_ptr<PairingNotifier> m_notifier;
};
