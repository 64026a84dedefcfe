#include "workflows/fiche_imprimee.h"

#include <QJsonDocument>
#include <QJsonObject>

#include "core/formats.h"
#include "meals/generation_repas.h"
#include "pupils/eleves.h"

using namespace Qt::StringLiterals;

namespace {

QString NomDuReglage(const TGenerationRepas& generation) {
  return generation.AvecVerrou ? u"FicheCuisine"_s : u"FicheCuisine2"_s;
}

/// The varieties under which the sheet names a pupil: both of an order with both dressings, the kind alone
/// of one that is not complete.
QString Garniture(const QString& sorte, const TCommande& commande) {
  QStringList varietes;
  for (std::size_t v = 0; v < kVarietes; ++v)
    if (EstDeVariete(commande, v)) varietes += sorte % u' ' % TexteVariete(v);
  return varietes.isEmpty() ? sorte : varietes.join(u" et "_s);
}

void AjouterSandwichs(TContenuDeFiche& contenu, TDateTime jour, const TSandwichsDuJour& sandwichs,
                      const QString& sorte) {
  for (std::size_t v = 0; v < kVarietes; ++v)
    if (sandwichs.Varietes[v] > 0) contenu.Nombres[sorte % u' ' % TexteVariete(v)] = sandwichs.Varietes[v];
  for (const TEleve* eleve : sandwichs.Eleves) {
    QString& texte = contenu.Eleves[eleve->NomComplet() % u" (" % eleve->Classe->Libelle() % u')'];
    if (!texte.isEmpty()) texte += u" et ";  // a namesake, or a row with both kinds
    texte += Garniture(sorte, *eleve->GetCommande(jour));
  }
}

QString Texte(int nombre) { return QString::number(nombre); }
QString Texte(const QString& texte) { return texte.isEmpty() ? u"rien"_s : texte; }

template <class T>
void Comparer(const std::map<QString, T>& avant, const std::map<QString, T>& apres,
              QStringList& changements) {
  std::map<QString, T> lignes = apres;
  lignes.insert(avant.begin(), avant.end());
  const auto valeur = [](const std::map<QString, T>& dans, const QString& ligne) {
    const auto i = dans.find(ligne);
    return i == dans.end() ? T() : i->second;
  };
  for (const auto& [ligne, _] : lignes)
    if (const T a = valeur(avant, ligne), b = valeur(apres, ligne); a != b)
      changements += ligne % u" : " % Texte(a) % u" → " % Texte(b);
}

template <class T>
QJsonObject EnJson(const std::map<QString, T>& lignes) {
  QJsonObject objet;
  for (const auto& [ligne, valeur] : lignes) objet[ligne] = valeur;
  return objet;
}

}  // namespace

TContenuDeFiche ContenuDeFiche(const TJourCuisine& jour, const TGenerationRepas& generation) {
  TContenuDeFiche contenu;
  for (const TClasseDuJour& classe : jour.Classes)
    for (const TLigneCuisine& ligne : LignesDeClasse(classe, generation))
      contenu.Nombres[classe.Classe->Libelle() % u", " % QString::fromUtf16(ligne.Libelle)] += ligne.Nombre;
  if (!generation.AvecVerrou) return contenu;  // no fillings
  AjouterSandwichs(contenu, jour.Jour, jour.DagosDuJour, QString::fromUtf16(generation.LigneDago));
  AjouterSandwichs(contenu, jour.Jour, jour.SandwichsDuJour, QString::fromUtf16(generation.LigneSandwich));
  return contenu;
}

TFicheImprimee TFicheImprimee::Lire(const TReglagesPoste& reglages, const TGenerationRepas& generation) {
  const QString texte = reglages.Lire(TRacine::Utilisateur, NomDuReglage(generation));
  const QJsonObject objet = QJsonDocument::fromJson(texte.toUtf8()).object();
  TFicheImprimee fiche{objet[u"jour"_s].toDouble(), objet[u"moment"_s].toDouble(), {}};
  const QJsonObject nombres = objet[u"nombres"_s].toObject(), eleves = objet[u"eleves"_s].toObject();
  for (auto i = nombres.begin(); i != nombres.end(); ++i) fiche.Contenu.Nombres[i.key()] = i.value().toInt();
  for (auto i = eleves.begin(); i != eleves.end(); ++i) fiche.Contenu.Eleves[i.key()] = i.value().toString();
  return fiche;
}

void TFicheImprimee::Memoriser(TReglagesPoste& reglages, const TGenerationRepas& generation) const {
  const QJsonObject objet{{u"jour"_s, Jour},
                          {u"moment"_s, Moment},
                          {u"nombres"_s, EnJson(Contenu.Nombres)},
                          {u"eleves"_s, EnJson(Contenu.Eleves)}};
  reglages.Ecrire(TRacine::Utilisateur, NomDuReglage(generation),
                  QString::fromUtf8(QJsonDocument(objet).toJson(QJsonDocument::Compact)));
}

QStringList TFicheImprimee::Changements(const TContenuDeFiche& maintenant) const {
  QStringList changements;
  Comparer(Contenu.Nombres, maintenant.Nombres, changements);
  Comparer(Contenu.Eleves, maintenant.Eleves, changements);
  return changements;
}
