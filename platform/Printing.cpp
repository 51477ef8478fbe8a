#include "platform/Printing.h"

#include "platform/Background.h"
#include "platform/Portal.h"

#include <QDBusArgument>
#include <QDBusUnixFileDescriptor>
#include <QTemporaryFile>

#include <system_error>
#include <utility>

namespace vasker {

namespace {

const QString interface = QStringLiteral("org.freedesktop.portal.Print");

/// What the portal says of the page, in millimetres; a letter where it says nothing.
QPageLayout pageOf(const QVariantMap& setup) {
    const auto number = [&setup](const char* key, double otherwise) {
        bool isNumber = false;
        const double value = setup.value(QLatin1String(key)).toDouble(&isNumber);
        return isNumber && value >= 0 ? value : otherwise;
    };
    constexpr double margin = 12;
    const QSizeF size(number("Width", 215.9), number("Height", 279.4));
    const bool isWide =
        setup.value(QStringLiteral("Orientation")).toString().contains(QStringLiteral("landscape"));
    return {QPageSize(size, QPageSize::Millimeter, QString(), QPageSize::FuzzyMatch),
            isWide ? QPageLayout::Landscape : QPageLayout::Portrait,
            QMarginsF(number("MarginLeft", margin),
                      number("MarginTop", margin),
                      number("MarginRight", margin),
                      number("MarginBottom", margin)),
            QPageLayout::Millimeter};
}

} // namespace

void Printing::print(const QString& title, QWindow* window, const Write& write) {
    const PortalCall call{
        .interface = interface,
        .method = QStringLiteral("PreparePrint"),
        .arguments = {PortalRequest::parentName(window),
                      title,
                      QVariantMap(),
                      QVariantMap{{QStringLiteral("Orientation"), QStringLiteral("landscape")}}},
        .options = {{QStringLiteral("modal"), true}}};
    const Job job{title, window};
    PortalRequest::send(
        m_bus,
        call,
        this,
        [this, job, write](PortalRequest::Outcome outcome, const QVariantMap& results) {
            if (outcome == PortalRequest::Outcome::unavailable) {
                Q_EMIT ended(false,
                             tr("This desktop has no dialog to print with. Save the map as PDF and "
                                "print that."));
            } else if (outcome == PortalRequest::Outcome::done) {
                Job chosen = job;
                chosen.token = results.value(QStringLiteral("token")).toUInt();
                this->write(
                    chosen,
                    pageOf(qdbus_cast<QVariantMap>(results.value(QStringLiteral("page-setup")))),
                    write);
            }
        });
}

void Printing::write(const Job& job, const QPageLayout& page, const Write& write) {
    Q_EMIT started();
    const auto file = std::make_shared<QTemporaryFile>();
    try {
        runInBackground(
            this,
            [file, page, write](const std::stop_token&) {
                if (!file->open()) {
                    return file->errorString();
                }
                const QString fault = write(*file, page);
                // The portal reads on from where the descriptor stands.
                const bool isWhole =
                    file->flush() && file->error() == QFileDevice::NoError && file->seek(0);
                return fault.isEmpty() && !isWhole ? file->errorString() : fault;
            },
            [this, job, file](const QString& fault) {
                fault.isEmpty() ? send(job, file) : fail(fault);
            });
    } catch (const std::system_error& error) {
        fail(QString::fromStdString(error.code().message()));
    }
}

void Printing::send(const Job& job, const std::shared_ptr<QTemporaryFile>& file) {
    const PortalCall call{
        .interface = interface,
        .method = QStringLiteral("Print"),
        .arguments = {PortalRequest::parentName(job.window),
                      job.title,
                      QVariant::fromValue(QDBusUnixFileDescriptor(file->handle()))},
        .options = {{QStringLiteral("token"), job.token}, {QStringLiteral("modal"), true}}};
    // The file stays until the portal has answered.
    PortalRequest::send(
        m_bus, call, this, [this, file](PortalRequest::Outcome outcome, const QVariantMap&) {
            if (outcome == PortalRequest::Outcome::unavailable) {
                fail(tr("the desktop did not take it."));
            } else if (outcome == PortalRequest::Outcome::done) {
                Q_EMIT ended(true, tr("The map is on its way to the printer."));
            } else {
                Q_EMIT ended(false, QString());
            }
        });
}

void Printing::fail(const QString& fault) {
    Q_EMIT ended(false, tr("The map could not be printed: %1").arg(fault));
}

} // namespace vasker
