#pragma once

#include <QAbstractListModel>
#include <QList>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

namespace zm {

/// What the program is made of and under which licences, for the About dialog: first the program itself, then the
/// libraries that its two executables link. Fixed, in the language of its construction. The libraries' full licence
/// texts are not repeated; each notice tells where they stand.
class NoticeCatalogModel : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The application owns it.")

public:
    /// In QML: name, version, licenseName, homePage, text.
    enum Role {
        NameRole = Qt::UserRole + 1,
        VersionRole, // of the library that runs where it can tell, else of the one that was built against, or empty
        LicenseNameRole, // for people; the text holds the SPDX identifier
        HomePageRole, // a URL, empty if there is none
        TextRole, // plain
    };
    Q_ENUM(Role)

    explicit NoticeCatalogModel(QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    struct Notice
    {
        QString name;
        QString version;
        QString licenseName;
        QUrl homePage;
        QString text;
    };

    QList<Notice> m_notices;
};

} // namespace zm
