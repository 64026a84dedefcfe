#include "screens/attendance/frm_ajout_releve.h"

namespace {

using T = TReleveSaisi;
constexpr char16_t kDebut[] = u"edHeureDebut", kFin[] = u"edHeureFin", kType[] = u"cmbTypeReleve";

QString Nom(const char16_t* nom) { return QString::fromUtf16(nom); }

/// No time shows an empty field; midnight is typed, or put there for one that was left empty.
TAcces<T> HeureOuRien(TDateTime T::*heure) {
  TAcces<T> acces = Membre(heure);
  acces.Lire = [heure](const T& releve) {
    return releve.*heure == 0.0 ? TValeurVue() : TValeurVue(releve.*heure);
  };
  return acces;
}

QStringList NomsImplantations() {
  QStringList noms;
  for (const TImplantation& site : *Globals.Eleves->Implantations)
    noms += site.LibelleCourt.isEmpty() ? site.Code : site.LibelleCourt;
  return noms;
}

TTableChamps<T> Table(bool avecImplantation) {
  using enum TGenreChamp;
  TTableChamps<T> table{
      {{.Nom = u"edDate"_s, .Libelle = u"Date du relevé:"_s, .Genre = Date, .Obligatoire = true},
       Membre(&T::Date)},
      {{.Nom = Nom(kType),
        .Libelle = u"Type de relevé:"_s,
        .Genre = Choix,
        .Obligatoire = true,
        .Refus = u"Veuillez sélectionner un type de relevé"_s,
        .Choix = TextesTypePresence},
       Membre(&T::IndexType)},
      {{.Nom = Nom(kDebut), .Libelle = u"Heure de début:"_s, .Genre = Heure, .Obligatoire = true},
       HeureOuRien(&T::Entree)},
      {{.Nom = Nom(kFin), .Libelle = u"Heure de fin :"_s, .Genre = Heure, .Obligatoire = true},
       HeureOuRien(&T::Sortie)}};
  if (avecImplantation)
    table.push_back({{.Nom = u"cmbImplantation"_s,
                      .Libelle = u"Implantation:"_s,
                      .Genre = Choix,
                      .Obligatoire = true,
                      .Refus = u"Vous devez indiquer l'implantation où le relevé s'est effectué."_s,
                      .Choix = NomsImplantations},
                     Membre(&T::IndexImplantation)});
  return table;
}

/// What a mask leaves of an empty field counts as nothing.
bool EstVide(const QString& heure) { return QString(heure).remove(u':').trimmed().isEmpty(); }

}  // namespace

TFrmAjoutReleve::TFrmAjoutReleve(const TContexteEcran&)
    : TFrmDialogueDe(u"Ajout de relevé"_s,
                     Table(Globals.Parametres->EstVrai(TParam::PlusieursImplantations))),
      avecImplantation_(Globals.Parametres->EstVrai(TParam::PlusieursImplantations)) {}

void TFrmAjoutReleve::Charger(TTypePresence type, TDateTime sortie, TDateTime entree, TDateTime date,
                              const QString& codeImplantation) {
  const int index = static_cast<int>(type) - 1;
  Saisi = {date, entree, sortie, index < TextesTypePresence().size() ? index : -1, -1};
  for (int site = 0; avecImplantation_ && site < Globals.Eleves->Implantations->Count(); ++site)
    if ((*Globals.Eleves->Implantations)[site].Code == codeImplantation) Saisi.IndexImplantation = site;
  Montrer();
}

int TFrmAjoutReleve::PremierChamp() {
  for (const char16_t* heure : {kDebut, kFin}) {
    const int champ = Champs().Indice(Nom(heure));
    if (Mode == Correction && EstVide(Champs().Texte(champ))) return champ;
  }
  return Champs().Indice(Nom(kType));
}

QString TFrmAjoutReleve::CodeImplantation() const {
  if (!avecImplantation_ || Saisi.IndexImplantation < 0) return {};
  return (*Globals.Eleves->Implantations)[Saisi.IndexImplantation].Code;
}

bool TFrmAjoutReleve::Preparer() {
  const int debut = Champs().Indice(Nom(kDebut)), fin = Champs().Indice(Nom(kFin));
  const bool sansDebut = EstVide(Champs().Texte(debut)), sansFin = EstVide(Champs().Texte(fin));
  if (sansDebut) Champs().Taper(debut, u"00:00"_s);
  if (sansDebut && sansFin) return Champs().SurFoyer(fin), false;
  if (sansFin) Champs().Taper(fin, u"00:00"_s);
  return true;
}
