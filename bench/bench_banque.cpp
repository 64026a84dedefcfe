// Bank movements: recognising the lines of a file, and step 2 of the import.
#include <cmath>
#include <cstdio>

#include "bench/barre.h"
#include "bench/chronometre.h"
#include "bench/sujets.h"
#include "core/chaines.h"
#include "core/fichiers.h"
#include "payments/extraits.h"
#include "workflows/import_virements.h"

using namespace Qt::StringLiterals;

namespace {

std::unique_ptr<TExtrait> Extrait(int rang) {
  auto extrait = std::make_unique<TExtrait>();
  extrait->DonneurOrdre = u"Famille %1"_s.arg(rang % 700);
  extrait->DateVirement = EncodeDate(2016, 10, 1 + rang % 28);
  extrait->Montant = Currency::Brut(1250 + rang % 9000);
  extrait->Communication = u"+++000/%1/16100+++"_s.arg(rang % 10000, 4, 10, QChar(u'0'));
  extrait->NumCptDonneur = u"BE%1"_s.arg(rang);
  return extrait;
}

bool Pareils(const QString& a, const QString& b) {
  return MajusculesSansAccents(a) == MajusculesSansAccents(b);
}

/// The first movement with the same five fields, one after the other.
const TExtrait* Chercher(const TExtraits& extraits, const TExtrait& e) {
  for (const TExtrait& autre : extraits)
    if (Pareils(autre.DonneurOrdre, e.DonneurOrdre) && autre.DateVirement == e.DateVirement &&
        autre.Montant == e.Montant && Pareils(autre.Communication, e.Communication) &&
        Pareils(autre.NumCptDonneur, e.NumCptDonneur))
      return &autre;
  return nullptr;
}

void MesurerReconnaissance(TEcole& ecole) {
  constexpr int nombre = 10'000, echantillon = 100;
  TExtraits extraits(ecole.Base(), 1990);
  std::vector<std::unique_ptr<TExtrait>> lus;
  for (int i = 0; i < nombre; ++i) extraits.Add(Extrait(i)), lus.push_back(Extrait(i));
  int trouves = 0;
  const double index = Duree([&] {
    for (const auto& lu : lus) trouves += extraits.Identique(*lu) != nullptr;
  });
  const double marche = Duree([&] {
    for (int i = 0; i < echantillon; ++i)
      trouves += Chercher(extraits, *lus[static_cast<std::size_t>(i * nombre / echantillon)]) != nullptr;
  });
  const bool tous = trouves == nombre + echantillon;
  Barre("plain search / recognising 10,000 bank lines against 10,000 known",
        tous ? marche * nombre / echantillon / index : std::nan(""), 100.0, false);
}

/// Seconds of step 2 on that many new movements of known pupils.
double Etape2(TControleur& controleur, const QTemporaryDir& dossier, int nombre) {
  QString texte = u";\n"_s.repeated(13);
  for (int i = 0; i < nombre; ++i)
    texte += u"x;05/10/2016;;;BE%1;Famille %1;;;;;12,50;EUR;;;+++00%2/%3/16100+++\n"_s.arg(i + nombre)
                 .arg((i % 500 + 1) / 100)
                 .arg(QString(u"%1"_s.arg((i % 500 + 1) % 100, 2, 10, QChar(u'0')) % u"10"));
  const QString chemin = dossier.filePath(u"releve.csv"_s);
  EcrireFichier(chemin, texte.toUtf8());
  TImportVirements import(controleur);
  if (!import.Etape1(chemin)) return std::nan("");
  return Duree([&] { import.Etape2(); });
}

}  // namespace

void MesurerBanque(TEcole& ecole, const QTemporaryDir& dossier) {
  MesurerReconnaissance(ecole);
  TReglagesPoste reglages;
  TSansFenetre fenetre;
  const THorloge horloge;
  TControleur controleur(ecole.Base(), reglages, fenetre, horloge);
  controleur.ChargerParametres();
  controleur.ChargerAnnee(TEcole::kAnnee);
  const double cinq = Etape2(controleur, dossier, 5'000);
  controleur.ChargerAnnee(TEcole::kAnnee);
  const double dix = Etape2(controleur, dossier, 10'000);
  Globals.Liberer();
  Barre("step 2 of 10,000 bank movements / of 5,000", dix / cinq, 2.2, true);
  std::fprintf(stderr, "# step 2 of 10,000 movements %.1f s\n", dix);
}
