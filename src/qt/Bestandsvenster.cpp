#include "qt/Bestandsvenster.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QStandardPaths>

#include "qt/Berichtvenster.h"
#include "qt/Vertaling.h"
#include "text/Unicode.h"

namespace lb77 {

namespace {

QString Patronen(const QString& patroon) {
  QStringList uit;
  for (const QString& een : patroon.split(u';', Qt::SkipEmptyParts)) {
    const QString schoon = een.trimmed();
    if (schoon == QLatin1String("*.*")) {
      uit += QStringLiteral("*");
    } else {
      uit << schoon << schoon.toLower() << schoon.toUpper();
    }
  }
  uit.removeDuplicates();
  return uit.join(u' ');
}

// Without the pattern that the name repeats between brackets.
QString KaleNaam(const QString& naam) {
  const qsizetype haak = naam.lastIndexOf(u" (");
  return haak > 0 ? naam.left(haak) : naam;
}

void ZetWijze(QFileDialog& venster, const BestandsVraag& vraag) {
  venster.setOption(QFileDialog::DontConfirmOverwrite);
  switch (vraag.wijze) {
    case BestandsWijze::Openen:
      venster.setFileMode(QFileDialog::ExistingFile);
      venster.setLabelText(QFileDialog::Accept, QStringLiteral("&Openen"));
      break;
    case BestandsWijze::Opslaan:
      venster.setAcceptMode(QFileDialog::AcceptSave);
      venster.setFileMode(QFileDialog::AnyFile);
      venster.setLabelText(QFileDialog::Accept, QStringLiteral("Op&slaan"));
      break;
    case BestandsWijze::Map:
      venster.setFileMode(QFileDialog::Directory);
      venster.setOption(QFileDialog::ShowDirsOnly);
      venster.setLabelText(QFileDialog::Accept, QStringLiteral("&Kiezen"));
      break;
  }
  if (vraag.wijze != BestandsWijze::Map) venster.setNameFilters(Naamfilters(vraag.filter));
}

QString Titel(BestandsWijze wijze) {
  switch (wijze) {
    case BestandsWijze::Openen:
      return QStringLiteral("Bestand openen");
    case BestandsWijze::Opslaan:
      return QStringLiteral("Bestand opslaan");
    case BestandsWijze::Map:
      return QStringLiteral("Map kiezen");
  }
  return {};
}

// The extension of the chosen filter, for a name that has none of the filters' own: what stands behind
// a full stop may belong to a name.
QString MetUitgang(const QString& pad, const QString& filter, const QStringList& filters) {
  if (filter.contains(QLatin1String("(*)"))) return pad;
  const QString eigen = QStringLiteral("*.") + QFileInfo(pad).suffix();
  for (const QString& een : filters) {
    const qsizetype haak = een.lastIndexOf(u'(');
    const QStringList patronen = een.mid(haak + 1).remove(u')').split(u' ');
    if (patronen.contains(eigen, Qt::CaseInsensitive)) return pad;
  }
  const qsizetype punt = filter.indexOf(QLatin1String("(*."));
  if (punt < 0) return pad;
  const QString uitgang = filter.mid(punt + 2).section(u' ', 0, 0).remove(u')');
  return pad + uitgang;
}

bool MagOverschrijven(QWidget& ouder, const QString& pad) {
  if (!QFileInfo::exists(pad)) return true;
  const std::string naam = VanQt(QFileInfo(pad).fileName()).tekst;
  return ToonBericht(&ouder, BerichtSoort::Vraag, Knoppen::NeeJa,
                     "Het bestand " + naam + " bestaat al. Overschrijven ?") == Antwoord::Ja;
}

}  // namespace

QStringList Naamfilters(std::string_view filter) {
  const QStringList delen = NaarQt(filter).split(u'|');
  QStringList uit;
  for (qsizetype i = 0; i + 1 < delen.size(); i += 2) {
    uit += QStringLiteral("%1 (%2)").arg(KaleNaam(delen.at(i)), Patronen(delen.at(i + 1)));
  }
  return uit;
}

namespace {

// Where files are saved is remembered apart from where they are opened.
std::string Sleutel(const BestandsVraag& vraag) {
  return vraag.wijze == BestandsWijze::Opslaan ? "opslaan|" + vraag.filter : vraag.filter;
}

// Does it hold a file of the first kind that the question is about?
bool HeeftZulke(const QString& map, const BestandsVraag& vraag) {
  const QString eerste = NaarQt(vraag.filter).section(u'|', 1, 1);
  return !QDir(map).entryList(Patronen(eerste).split(u' '), QDir::Files).isEmpty();
}

// The first of these that is there.
QString Beginmap(const BestandsVraag& vraag, const VensterInstellingen& instellingen) {
  const auto plek = QStandardPaths::writableLocation;
  const QString gevraagd = PadNaarQt(vraag.beginmap);
  QStringList mappen{instellingen.LaatsteMap(Sleutel(vraag))};
  if (vraag.wijze == BestandsWijze::Map) mappen.prepend(gevraagd);
  if (vraag.wijze == BestandsWijze::Openen) {
    if (!gevraagd.isEmpty() && HeeftZulke(gevraagd, vraag)) mappen += gevraagd;
    mappen += plek(QStandardPaths::DownloadLocation);
  }
  mappen += plek(QStandardPaths::DocumentsLocation);
  for (const QString& map : mappen) {
    if (!map.isEmpty() && QDir(map).exists()) return map;
  }
  return QDir::homePath();
}

std::optional<std::filesystem::path> Kies(QFileDialog& venster, const BestandsVraag& vraag,
                                          VensterInstellingen& instellingen) {
  venster.setLabelText(QFileDialog::Reject, QStringLiteral("&Annuleren"));
  venster.setLabelText(QFileDialog::FileName, QStringLiteral("Bestands&naam:"));
  venster.setLabelText(QFileDialog::FileType, QStringLiteral("Soort bestand:"));
  venster.setLabelText(QFileDialog::LookIn, QStringLiteral("Zoeken in:"));
  while (venster.exec() == QDialog::Accepted) {
    QString pad = venster.selectedFiles().value(0);
    if (pad.isEmpty()) return std::nullopt;
    if (vraag.wijze == BestandsWijze::Opslaan) {
      pad = MetUitgang(pad, venster.selectedNameFilter(), venster.nameFilters());
      if (!MagOverschrijven(venster, pad)) continue;
    }
    instellingen.BewaarLaatsteMap(Sleutel(vraag), QFileInfo(pad).absolutePath());
    return PadVanQt(QDir::toNativeSeparators(pad));
  }
  return std::nullopt;
}

// The kind of file that the name already has.
void KiesSoort(QFileDialog& venster, const QString& naam) {
  const QString patroon = QStringLiteral("(*.%1").arg(QFileInfo(naam).suffix());
  for (const QString& filter : venster.nameFilters()) {
    if (filter.contains(patroon, Qt::CaseInsensitive)) return venster.selectNameFilter(filter);
  }
}

}  // namespace

std::optional<std::filesystem::path> KiesBestand(QWidget* ouder, const BestandsVraag& vraag,
                                                 VensterInstellingen& instellingen) {
  QFileDialog venster(ouder, Titel(vraag.wijze), Beginmap(vraag, instellingen));
  ZetWijze(venster, vraag);
  return Kies(venster, vraag, instellingen);
}

std::optional<std::filesystem::path> KiesOpslag(QWidget* ouder, const BestandsVraag& vraag,
                                                const std::filesystem::path& naam,
                                                VensterInstellingen& instellingen) {
  QFileDialog venster(ouder, Titel(vraag.wijze), Beginmap(vraag, instellingen));
  ZetWijze(venster, vraag);
  const QString voorstel = PadNaarQt(naam);
  KiesSoort(venster, voorstel);
  venster.selectFile(voorstel);
  return Kies(venster, vraag, instellingen);
}

}  // namespace lb77
