#include "report/layout/formeur.h"

#include <QSet>
#include <algorithm>

#include "report/layout/codes_barres.h"

using namespace Qt::StringLiterals;

/// A visible object with its place on the band.
struct TFormeur::TObjetPret {
  const TObjetModele* Modele;
  TEtatObjet Etat;  ///< Y and Hauteur follow the stretching
  TParagraphe Paragraphe;
};

namespace {

bool EstTexte(const TObjetModele& objet) {
  return objet.Sorte == TSorteObjet::Texte || objet.Sorte == TSorteObjet::TexteRiche;
}

QRectF Rectangle(float x, float y, float largeur, float hauteur) {
  return QRectF(static_cast<qreal>(x), static_cast<qreal>(y), static_cast<qreal>(largeur),
                static_cast<qreal>(hauteur));
}

bool AvecNumeros(const QString& texte) {
  return texte.contains(kMarquePage) || texte.contains(kMarqueTotal) || texte.contains(kMarqueColonne);
}

/// One stands below the other, at least in part.
bool SousLui(const TObjetModele& dessus, const TObjetModele& dessous) {
  return dessous.Y >= dessus.Y + dessus.Hauteur && dessous.X < dessus.X + dessus.Largeur &&
         dessus.X < dessous.X + dessous.Largeur;
}

/// The first words of a text, for a fault that names it.
QString Debut(const TParagraphe& paragraphe) {
  constexpr qsizetype kLettres = 40;
  QString texte;
  for (const auto& ligne : paragraphe.Lignes) {
    float fin = -1;  // each line, and each word that is spread over a line, follows a blank
    for (const TSegment& segment : ligne) {
      if (!texte.isEmpty() && segment.X > fin) texte += u' ';
      texte += segment.Forme->Texte;
      fin = segment.X + segment.Forme->Largeur + 1;
    }
  }
  texte.removeIf([](QChar c) { return c.category() == QChar::Other_PrivateUse; });  // marks of numbers
  return texte.size() <= kLettres ? texte : QString(texte.left(kLettres).trimmed() % u'…');
}

bool Dedans(const TObjetModele& cadre, const TObjetModele& objet) {
  return objet.X >= cadre.X && objet.X + objet.Largeur <= cadre.X + cadre.Largeur && objet.Y >= cadre.Y &&
         objet.Y + objet.Hauteur <= cadre.Y + cadre.Hauteur;
}

}  // namespace

TResolveur TFormeur::Resolveur() const {
  return [this](const QString& nom) { return contexte_.Valeur(nom); };
}

QString TFormeur::Texte(const TObjetModele& objet, const TEtatObjet& etat) const {
  return etat.Texte ? *etat.Texte : RemplacerNoms(objet.Texte, Resolveur());
}

TParagraphe TFormeur::Composer(const TObjetModele& objet, const TEtatObjet& etat) const {
  const TMorceau debut{{}, objet.Style.Gras, objet.Style.Italique, objet.Souligne};
  const bool riche = objet.Sorte == TSorteObjet::TexteRiche;
  const TBalises balises{riche || objet.Balises, objet.Balises};
  // What a script set is a value: it stands where a name would.
  const auto morceaux = etat.Texte ? Remplacer(
                                         u"[]"_s, [&](const QString&) { return *etat.Texte; }, balises, debut)
                                   : Remplacer(objet.Texte, Resolveur(), balises, debut);
  if (colonne_ == nullptr || etat.Largeur > 0)
    return MettreEnLignes(morceaux, objet, etat.Largeur, etat.Hauteur);
  TObjetModele cellule = objet;
  if (colonne_->Droite) cellule.Alignement = TAlignementTexte::Droite;
  return MettreEnLignes(morceaux, cellule, std::max(1.0F, colonne_->Largeur - colonne_->Blanc), etat.Hauteur);
}

std::vector<TFormeur::TObjetPret> TFormeur::Preparer(const TBandeModele& bande) {
  // All procedures go first: one may set what another object shows.
  for (const TObjetModele& objet : bande.Objets) contexte_.Appeler(objet.AvantImpression, objet.Nom, bande);
  std::vector<TObjetPret> objets;
  objets.reserve(bande.Objets.size());
  for (const TObjetModele& objet : bande.Objets) {
    const TEtatObjet& etat = contexte_.Etats.De(objet);
    if (!etat.Visible) continue;
    objets.push_back({&objet, etat, EstTexte(objet) ? Composer(objet, etat) : TParagraphe()});
  }
  ChoisirAjustes(objets);
  return objets;
}

void TFormeur::ChoisirAjustes(std::vector<TObjetPret>& objets) const {
  QSet<QString> finis;
  for (std::size_t i = 0; i < objets.size();) {
    const QString& groupe = objets[i].Modele->GroupeAjuste;
    const bool dernier = std::none_of(objets.begin() + static_cast<std::ptrdiff_t>(i) + 1, objets.end(),
                                      [&](const TObjetPret& o) { return o.Modele->GroupeAjuste == groupe; });
    const bool tient = !objets[i].Paragraphe.Deborde && !objets[i].Paragraphe.MotCoupe;
    const bool garder = groupe.isEmpty() || (!finis.contains(groupe) && (tient || dernier));
    if (garder && !groupe.isEmpty()) finis.insert(groupe);
    if (garder)
      ++i;
    else
      objets.erase(objets.begin() + static_cast<std::ptrdiff_t>(i));
  }
}

/// Frames grow with the texts that stand in them; gives the lowest foot.
float TFormeur::EtirerCadres(std::vector<TObjetPret>& objets, float bas) const {
  for (TObjetPret& cadre : objets) {
    if (cadre.Modele->Sorte != TSorteObjet::Cadre || !cadre.Modele->Etirable) continue;
    const float avant = cadre.Etat.Y - cadre.Modele->Y;
    float grandi = 0;
    for (const TObjetPret& objet : objets)
      if (&objet != &cadre && Dedans(*cadre.Modele, *objet.Modele))
        grandi = std::max(
            grandi, objet.Etat.Y + objet.Etat.Hauteur - objet.Modele->Y - objet.Modele->Hauteur - avant);
    cadre.Etat.Hauteur += grandi;
    if (avant + grandi > 0) bas = std::max(bas, cadre.Etat.Y + cadre.Etat.Hauteur);
  }
  return bas;
}

/// By how much a text is higher than its place.
float TFormeur::Croissance(const TObjetPret& objet) {
  return objet.Modele->Etirable ? std::max(0.0F, objet.Paragraphe.Hauteur() - objet.Etat.Hauteur) : 0.0F;
}

/// Moves what stands below a text that grew; gives by how much the band grows.
float TFormeur::Etirer(const TBandeModele& bande, std::vector<TObjetPret>& objets) const {
  // In most bands nothing does, and a transfer form has four hundred objects.
  const bool immobile = std::ranges::none_of(objets, [](const TObjetPret& objet) {
    return (objet.Modele->Etirable && objet.Modele->Sorte == TSorteObjet::Cadre) || Croissance(objet) > 0;
  });
  if (immobile) return 0;
  std::vector<TObjetPret*> ordre;
  for (TObjetPret& objet : objets) ordre.push_back(&objet);
  std::ranges::stable_sort(ordre, {}, [](const TObjetPret* o) { return o->Modele->Y; });
  const float hauteur = contexte_.Etats.De(bande).Hauteur;
  // A rule at the foot keeps its distance from what grew above it.
  float limite = hauteur;
  for (const TObjetPret& objet : objets)
    if (objet.Modele->SousLaBande) limite = std::min(limite, objet.Modele->Y);
  float bas = limite;
  std::vector<float> pousse(ordre.size());  // how much lower its foot came
  for (std::size_t i = 0; i < ordre.size(); ++i) {
    TObjetPret& objet = *ordre[i];
    if (objet.Modele->SousLaBande) continue;
    float plus = 0;
    for (std::size_t j = 0; j < i; ++j)
      if (SousLui(*ordre[j]->Modele, *objet.Modele)) plus = std::max(plus, pousse[j]);
    const float grandi = Croissance(objet);
    objet.Etat.Y += plus;
    objet.Etat.Hauteur += grandi;
    pousse[i] = plus + grandi;
    if (plus + grandi > 0) bas = std::max(bas, objet.Etat.Y + objet.Etat.Hauteur);
  }
  bas = EtirerCadres(objets, bas);
  return bande.Etirable ? bas - limite : 0;
}

std::optional<TBandeFormee> TFormeur::Former(const TBandeModele& bande, const TPlaceColonne& colonne) {
  colonne_ = &colonne;
  auto formee = Former(bande);
  colonne_ = nullptr;
  return formee;
}

std::optional<TBandeFormee> TFormeur::Former(const TBandeModele& bande) {
  contexte_.EnCellule = bande.Colonnes > 1;
  contexte_.Appeler(bande.AvantImpression, bande.Nom, bande);
  const TEtatObjet& etat = contexte_.Etats.De(bande);
  if (!etat.Visible) return {};
  TBandeFormee formee;
  formee.Modele = &bande;
  formee.Position = contexte_.Position;
  std::vector<TObjetPret> objets = Preparer(bande);
  formee.Elements.reserve(objets.size() + 1);
  const float croissance = Etirer(bande, objets);
  formee.Hauteur = etat.Hauteur + croissance;
  if (qAlpha(etat.Fond) > 0) {
    const bool cellule = bande.Sorte == TSorteBande::Colonnes || bande.Sorte == TSorteBande::EnteteColonnes;
    const float largeur = cellule && colonne_ != nullptr ? colonne_->Largeur : etat.Largeur;
    formee.Elements.emplace_back(TElementCadre{Rectangle(0, 0, largeur, formee.Hauteur), 0, 0, etat.Fond, 0});
    formee.Fond = true;
  }
  for (TObjetPret& objet : objets) {
    const std::size_t premier = formee.Elements.size();
    if (objet.Modele->SousLaBande) objet.Etat.Y += croissance;
    Dessiner(bande, objet, formee);
    for (std::size_t i = premier; objet.Modele->SousLaBande && i < formee.Elements.size(); ++i)
      formee.AuPied.push_back(i);
  }
  if (!bande.Signet.isEmpty())
    formee.Signets.push_back({RemplacerNoms(bande.Signet, Resolveur()), bande.NiveauSignet});
  return formee;
}

void TFormeur::Dessiner(const TBandeModele& bande, const TObjetPret& objet, TBandeFormee& formee) {
  const TObjetModele& modele = *objet.Modele;
  const TEtatObjet& etat = objet.Etat;
  switch (modele.Sorte) {
    case TSorteObjet::Texte:
    case TSorteObjet::TexteRiche:
      return DessinerTexte(bande, objet, formee);
    case TSorteObjet::Trait:
      formee.Elements.emplace_back(TElementTrait{modele.X, etat.Y, modele.X + etat.Largeur,
                                                 etat.Y + etat.Hauteur, modele.Epaisseur, modele.Couleur,
                                                 modele.Tiret});
      return;
    case TSorteObjet::Cadre:
      formee.Elements.emplace_back(TElementCadre{Rectangle(modele.X, etat.Y, etat.Largeur, etat.Hauteur),
                                                 modele.Epaisseur, modele.Couleur, etat.Fond,
                                                 modele.FondBas});
      return;
    case TSorteObjet::Image:
      return DessinerImage(objet, formee);
    case TSorteObjet::CodeBarres:
    case TSorteObjet::Qr:
      return DessinerCode(bande, objet, formee);
    case TSorteObjet::SousRapport:
      return;  // its bands follow this one
  }
}

void TFormeur::NoterTexte(const TBandeModele& bande, const TObjetModele& objet,
                          const TParagraphe& paragraphe) {
  if (paragraphe.Deborde && !objet.Etirable)
    contexte_.Noter(bande, objet, u"un texte est plus grand que sa place : « %1 »."_s.arg(Debut(paragraphe)));
  if (paragraphe.MotCoupe) contexte_.Noter(bande, objet, u"un mot plus large que sa place est coupé."_s);
  for (const auto& ligne : paragraphe.Lignes)
    for (const TSegment& segment : ligne) {
      const QString& texte = segment.Forme->Texte;
      // Marks of numbers are in no font either. Once an object: the next rows would say the same.
      if (!segment.Forme->Incomplet || AvecNumeros(texte) || !illisibles_.insert(&objet).second) continue;
      contexte_.Noter(bande, objet, u"aucune police n'a tous les caractères de « %1 »."_s.arg(texte));
    }
}

void TFormeur::DessinerTexte(const TBandeModele& bande, const TObjetPret& objet, TBandeFormee& formee) {
  const TObjetModele& modele = *objet.Modele;
  const TParagraphe& paragraphe = objet.Paragraphe;
  if (qAlpha(objet.Etat.Fond) > 0)
    formee.Elements.emplace_back(TElementCadre{
        Rectangle(modele.X, objet.Etat.Y, objet.Etat.Largeur, objet.Etat.Hauteur), 0, 0, objet.Etat.Fond, 0});
  NoterTexte(bande, modele, paragraphe);
  for (std::size_t ligne = 0; ligne < paragraphe.Lignes.size(); ++ligne)
    for (const TSegment& segment : paragraphe.Lignes[ligne]) {
      if (AvecNumeros(segment.Forme->Texte)) {
        TStyle style = modele.Style;
        formee.Numeros.push_back({formee.Elements.size(), segment.Forme->Texte, style, modele.Alignement,
                                  modele.X, objet.Etat.Largeur});
      }
      formee.Elements.emplace_back(TElementTexte{segment.Forme, modele.X + segment.X,
                                                 objet.Etat.Y + paragraphe.Base(ligne), modele.Couleur,
                                                 segment.Souligne});
    }
}

/// In proportion, at the top of its place.
void TFormeur::DessinerImage(const TObjetPret& objet, TBandeFormee& formee) const {
  std::shared_ptr<const QImage> image = objet.Modele->Image;
  if (auto donnee = contexte_.Rapport.Image(objet.Modele->Nom, contexte_.Position))
    image = std::make_shared<const QImage>(std::move(*donnee));
  if (!image || image->isNull()) return;
  const QSizeF taille = QSizeF(image->size())
                            .scaled(static_cast<qreal>(objet.Etat.Largeur),
                                    static_cast<qreal>(objet.Etat.Hauteur), Qt::KeepAspectRatio);
  qreal x = static_cast<qreal>(objet.Modele->X);
  const qreal reste = static_cast<qreal>(objet.Etat.Largeur) - taille.width();
  if (objet.Modele->Alignement == TAlignementTexte::Droite) x += reste;
  if (objet.Modele->Alignement == TAlignementTexte::Centre) x += reste / 2;
  formee.Elements.emplace_back(
      TElementImage{QRectF(QPointF(x, static_cast<qreal>(objet.Etat.Y)), taille), std::move(image)});
}

void TFormeur::DessinerCode(const TBandeModele& bande, const TObjetPret& objet, TBandeFormee& formee) {
  const TObjetModele& modele = *objet.Modele;
  const QString texte = Texte(modele, objet.Etat);
  const QRectF place = Rectangle(modele.X, objet.Etat.Y, objet.Etat.Largeur, objet.Etat.Hauteur);
  TCodeDessine code = modele.Sorte == TSorteObjet::Qr ? DessinerQr(texte, place)
                                                      : ::DessinerCode(objet.Etat.TypeCode, texte, place,
                                                                       modele.Module, modele.Alignement);
  if (!code.Defaut.isEmpty()) contexte_.Noter(bande, modele, code.Defaut);
  if (!code.Barres.Barres.empty()) formee.Elements.emplace_back(std::move(code.Barres));
}
