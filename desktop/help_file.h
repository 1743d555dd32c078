// The help file: topics, pictures, contents, keywords and context numbers in one compiled resource
// file with a seal behind it (ayuda/sellar.cmake).
//
// Owns the bytes and their registration with the toolkit, under a prefix that no other file has.
// Opened by the help viewer; read by the help window and its browser. A file that is missing, too
// large, cut, altered or incomplete is not registered at all. GUI thread only.
//
// Names of topics are file names ("aim.html"); an address may add an anchor ("aim.html#turn").
#pragma once

#include <QByteArray>
#include <QString>
#include <map>
#include <vector>

#include "runtime/types.h"

namespace corvanda {

struct HelpTopic {
    QString name;
    QString title;
    int depth = 0;  ///< 0 for a topic of its own, 1 and more below the one before
};

struct HelpKeyword {
    QString word;
    QString address;
};

class HelpFile {
  public:
    enum class Condition { Missing, Damaged, Good };

    /// Reads the whole file into memory; later changes on the disk do not matter.
    explicit HelpFile(const QString& file);
    ~HelpFile();
    HelpFile(const HelpFile&) = delete;
    HelpFile& operator=(const HelpFile&) = delete;

    Condition State() const { return condition; }

    /// The topics in reading order. The first one is the welcome page.
    const std::vector<HelpTopic>& Contents() const { return contents; }
    /// In alphabetical order.
    const std::vector<HelpKeyword>& Keywords() const { return keywords; }
    /// The topic of a context number; the welcome page for a number that nobody gave.
    QString TopicOf(Integer context) const;

    bool Has(const QString& name) const;
    /// The bytes of a topic or picture, empty where there is none. They live as long as the file.
    QByteArray Read(const QString& name) const;
    QString ReadText(const QString& name) const;

  private:
    Condition Load(const QString& file);
    bool ReadLists();
    void ReadContents();
    void ReadKeywords();
    void ReadContexts();
    QString TitleOf(const QString& name) const;
    QString Inside(const QString& name) const { return prefix + QLatin1Char('/') + name; }
    void Unregister();

    const QString prefix;
    QByteArray bytes;
    bool registered = false;
    std::vector<HelpTopic> contents;
    std::vector<HelpKeyword> keywords;
    std::map<Integer, QString> contexts;
    Condition condition;
};

/// The topic of an address: what stands before its anchor.
QString TopicIn(const QString& address);

}  // namespace corvanda
