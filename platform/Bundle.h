#pragma once
// The application's own files: resources by name and extension, and the bundle information, which
// is the JSON object in "BundleInformation.json" among the resources.

#include <QJsonValue>
#include <QString>

#include <optional>

namespace vasker {

class Bundle {
  public:
    /// The bundle whose resources lie in `folder`.
    explicit Bundle(QString folder);
    /// The running application's bundle: the folder "resources" beside the executable in a build
    /// tree, else "share/vasker-open-map" of the prefix that the executable is installed in.
    [[nodiscard]] static Bundle ofApplication();

    [[nodiscard]] const QString& folder() const noexcept { return m_folder; }

    /// The path of the resource `name`.`extension`, or nothing where there is none. Whether it can
    /// be read shows only when it is.
    [[nodiscard]] std::optional<QString> resource(const QString& name,
                                                  const QString& extension) const;

    /// The value of `key` in the bundle information: of any JSON type; undefined where the key, the
    /// whole file or its meaning is missing. Read anew on every call.
    [[nodiscard]] QJsonValue information(const QString& key) const;

  private:
    QString m_folder;
};

} // namespace vasker
