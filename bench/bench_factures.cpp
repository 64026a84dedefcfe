// A month's invoices, from the open year to the finished PDF, beside a script that only draws their pages.
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <cmath>
#include <cstdio>
#include <string>

#include "bench/barre.h"
#include "bench/chronometre.h"
#include "bench/sujets.h"
#include "bench/vidage.h"
#include "core/calendrier_scolaire.h"
#include "core/exceptions.h"
#include "documents/catalogue.h"
#include "documents/modeles.h"
#include "report/layout/mise_en_page.h"
#include "report/output/pdf.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kTours = 7;
constexpr int kPatience = 120'000;  // ms

/// Seconds of each step.
struct TEtapes {
  std::vector<double> Contenu, MiseEnPage, Pdf;
};

TDocumentPrepare Facturer(TEcole& ecole, const TDonneesAnnee& annee, const QString& chemin, TEtapes& etapes) {
  const TPeriode octobre = BornesMois(10, TEcole::kAnnee);
  TChoixDocument choix;
  choix.DateDebut = octobre.Premier;
  choix.DateFin = octobre.Dernier;
  choix.Eleves = annee.Eleves->Tous();
  TResultat resultat;
  etapes.Contenu.push_back(Duree([&] {
    resultat = FaireDocument({*annee.Eleves, ecole.Parametres()}, *TrouverTitre(u"Facture"), choix);
  }));
  const TRapport& rapport = resultat.Rapports.at(0);
  TDocumentPrepare document;
  etapes.MiseEnPage.push_back(Duree([&] {
    document = MettreEnPage(rapport, *ModeleDocument(rapport.Modele()), {octobre.Dernier, false});
  }));
  etapes.Pdf.push_back(Duree([&] {
    EcrirePdf({&document}, rapport.Titre(), ecole.Parametres().GetParametre(TParam::NomEcole), chemin);
  }));
  return document;
}

/// The drawing script, which waits for its turns.
class TReportLab {
 public:
  TReportLab(const QString& vidage, const QString& pdf) {
    processus_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    processus_.start(u"/usr/bin/python3"_s, {QStringLiteral(BENCH "/reportlab_factures.py"), vidage, pdf});
    pret_ = Ligne() == "pret";
  }
  ~TReportLab() {
    processus_.closeWriteChannel();
    processus_.waitForFinished(kPatience);
  }

  /// False when ReportLab is not installed.
  bool Pret() const { return pret_; }
  /// Seconds of one more turn.
  double Dessiner() {
    processus_.write("\n");
    return Ligne().split(' ').first().toDouble();
  }

 private:
  QByteArray Ligne() {
    while (!processus_.canReadLine() && processus_.waitForReadyRead(kPatience)) {
    }
    return processus_.readLine().trimmed();
  }

  QProcess processus_;
  bool pret_ = false;
};

void Ecrire(const QString& chemin, const QByteArray& octets) {
  QFile fichier(chemin);
  if (!fichier.open(QIODevice::WriteOnly) || fichier.write(octets) != octets.size())
    throw Exception(fichier.errorString());
}

/// `generation` names the bars.
void MesurerGeneration(TEcole& ecole, const QTemporaryDir& dossier, const std::string& generation) {
  const QString notre = dossier.filePath(u"factures.pdf"_s);
  const QString leur = dossier.filePath(u"reportlab.pdf"_s);
  const QString vidage = dossier.filePath(u"factures.json"_s);

  TEtapes etapes;
  OublierMaximum();
  auto annee = ecole.Charger();
  const TDocumentPrepare document = Facturer(ecole, *annee, notre, etapes);
  const double memoire = MemoireMaximale();
  if (document.Pages.size() < 500) throw Exception(u"Il manque des factures."_s);
  Ecrire(vidage, Vider(document));

  TReportLab reportlab(vidage, leur);
  if (!reportlab.Pret())
    std::fprintf(stderr,
                 "ReportLab manque (paquet python3-reportlab) : rien à quoi comparer les factures.\n");
  std::vector<double> nous, eux;
  for (int i = 0; i < kTours; ++i) {  // in turns, so that a busy machine slows both
    annee.reset();
    annee = ecole.Charger();  // what a first look at the pupils reads is part of the work
    nous.push_back(Duree([&] { Facturer(ecole, *annee, notre, etapes); }));
    if (reportlab.Pret()) eux.push_back(reportlab.Dessiner());
  }
  const double secondes = reportlab.Pret() ? Mediane(eux) : NAN;
  const auto octets = static_cast<double>(QFileInfo(notre).size());
  const double leurs = reportlab.Pret() ? static_cast<double>(QFileInfo(leur).size()) : NAN;
  const auto barre = [&](const char* nom, double mesure, double limite, bool auPlus) {
    Barre((generation + ": " + nom).c_str(), mesure, limite, auPlus);
  };
  barre("month's invoices, open year to finished PDF / ReportLab drawing the same pages",
        secondes / Mediane(nous), 2.5, false);
  barre("octets of that PDF / those of ReportLab's", octets / leurs, 1.0, true);
  barre("peak memory of those invoices, MB", memoire, 300.0, true);
  std::fprintf(stderr, "# %zu pages: %.3f s (content %.3f, layout %.3f, PDF %.3f), ReportLab %.3f s\n",
               document.Pages.size(), Mediane(nous), Mediane(etapes.Contenu), Mediane(etapes.MiseEnPage),
               Mediane(etapes.Pdf), secondes);
}

}  // namespace

void MesurerFactures(TEcole& ecole, const QTemporaryDir& dossier) {
  MesurerGeneration(ecole, dossier, "open items");
  ecole.Regler(TParam::CompteCourant, u"1"_s);
  ecole.Regler(TParam::VirementIBAN, u"BE68539007547034"_s);  // with a payment code each
  MesurerGeneration(ecole, dossier, "running account with transfer forms");
  ecole.Regler(TParam::CompteCourant, {});
}
