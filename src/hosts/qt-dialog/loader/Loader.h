#pragma once

#include <QGenericPlugin>

namespace vantorel {

/// The plug-in that Qt loads at the start of every program. It links neither Qt Widgets nor the
/// rest of our code: most programs never open a colour dialog.
class LoaderPlugin final : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "vantorel.json")

public:
    /// Returns an object that waits for colour dialogs, or one that does nothing if there is one
    /// already. Qt owns it.
    QObject* create(const QString& name, const QString& parameters) override;
};

}  // namespace vantorel
