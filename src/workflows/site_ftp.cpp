#include "workflows/site_ftp.h"

#include <curl/curl.h>

#include <QSaveFile>
#include <QStringDecoder>

#include "core/exceptions.h"

using namespace Qt::StringLiterals;

namespace {

constexpr long kConnexionSecondes = 15;
constexpr long kSilenceSecondes = 30;
constexpr qsizetype kTailleMaximum = 64LL * 1024 * 1024;
constexpr long kRienDeTel = 550;  // what a site answers for a missing file, and some for an empty folder

struct TRaison {
  CURLcode Code;
  const char16_t* Texte;
};

constexpr TRaison kRaisons[] = {
    {CURLE_URL_MALFORMAT, u"l'adresse du site n'est pas valable"},
    {CURLE_COULDNT_RESOLVE_HOST, u"le site n'a pas été trouvé"},
    {CURLE_COULDNT_CONNECT, u"le site ne répond pas"},
    {CURLE_LOGIN_DENIED, u"le site refuse l'utilisateur ou le mot de passe"},
    {CURLE_REMOTE_ACCESS_DENIED, u"le site refuse l'accès au dossier"},
    {CURLE_PARTIAL_FILE, u"le transfert a été coupé"},
    {CURLE_OPERATION_TIMEDOUT, u"le site ne répond plus"},
    {CURLE_RECV_ERROR, u"le transfert a été coupé"},
    {CURLE_SEND_ERROR, u"la connexion a été coupée"},
    {CURLE_GOT_NOTHING, u"la connexion a été coupée"},
    {CURLE_FTP_WEIRD_SERVER_REPLY, u"ce qui répond n'est pas un site FTP"},
    {CURLE_QUOTE_ERROR, u"le site refuse d'effacer le fichier"},
    {CURLE_WRITE_ERROR, u"le fichier est trop grand"},
    {CURLE_UNSUPPORTED_PROTOCOL, u"l'adresse n'est pas celle d'un site FTP"},
    {CURLE_FTP_ACCEPT_FAILED, u"le site n'ouvre pas le transfert"},
    {CURLE_FTP_ACCEPT_TIMEOUT, u"le site n'ouvre pas le transfert"},
    {CURLE_FTP_WEIRD_PASV_REPLY, u"le site n'ouvre pas le transfert"},
    {CURLE_FTP_WEIRD_227_FORMAT, u"le site n'ouvre pas le transfert"},
    {CURLE_FTP_CANT_GET_HOST, u"le site n'ouvre pas le transfert"},
    {CURLE_FTP_COULDNT_RETR_FILE,
     u"le site ne donne pas le fichier : il est peut-être en train de le recevoir"},
    {CURLE_SSL_CONNECT_ERROR, u"la connexion sécurisée n'a pas pu s'établir"},
    {CURLE_PEER_FAILED_VERIFICATION, u"le certificat du site n'est pas valable"},
    {CURLE_USE_SSL_FAILED, u"le site n'accepte pas de connexion sécurisée"},
};

[[noreturn]] void Echouer(CURLcode code) {
  for (const TRaison& raison : kRaisons)
    if (raison.Code == code) throw Exception(QString(QStringView(raison.Texte) % u'.'));
  throw Exception(u"le site a répondu autrement que prévu (code %1)."_s.arg(static_cast<int>(code)));
}

std::size_t Recevoir(const char* octets, std::size_t taille, std::size_t nombre, void* vers) {
  auto& recu = *static_cast<QByteArray*>(vers);
  const auto longueur = static_cast<qsizetype>(taille * nombre);
  if (recu.size() + longueur > kTailleMaximum) return 0;
  recu.append(octets, longueur);
  return taille * nombre;
}

/// The name that a line of the listing tells; "" when it is not one.
QString NomDeFichier(QByteArrayView ligne) {
  if (ligne.startsWith("./")) ligne = ligne.sliced(2);
  QStringDecoder utf8(QStringDecoder::Utf8);
  const QString nom = QString(utf8(ligne)).trimmed();
  if (utf8.hasError() || nom.startsWith(u'.') || !nom.endsWith(u".txt", Qt::CaseInsensitive)) return {};
  for (const QChar c : nom)
    if (c == u'/' || c == u'\\' || c == u':' || !c.isPrint()) return {};
  return nom;
}

}  // namespace

/// One connection, kept from call to call.
struct TSiteFtp::TCurl {
  TCurl() {
    static const CURLcode prete = curl_global_init(CURL_GLOBAL_DEFAULT);
    Poignee = prete == CURLE_OK ? curl_easy_init() : nullptr;
    if (Poignee == nullptr)
      throw Exception(u"Le transfert par FTP n'est pas disponible sur cet ordinateur."_s);
  }
  ~TCurl() { curl_easy_cleanup(Poignee); }
  TCurl(const TCurl&) = delete;
  TCurl& operator=(const TCurl&) = delete;

  template <class Valeur>
  void Regler(CURLoption option, Valeur valeur) {
    curl_easy_setopt(Poignee, option, valeur);
  }

  /// What every request has in common; the connection itself stays.
  void Preparer(const QByteArray& adresse) {
    curl_easy_reset(Poignee);
    Recu.clear();
    Regler(CURLOPT_URL, adresse.constData());
    Regler(CURLOPT_PROTOCOLS_STR, "ftp,ftps");
    Regler(CURLOPT_USERNAME, Utilisateur.constData());
    Regler(CURLOPT_PASSWORD, MotDePasse.constData());
    Regler(CURLOPT_NOSIGNAL, 1L);
    Regler(CURLOPT_CONNECTTIMEOUT, kConnexionSecondes);
    Regler(CURLOPT_SERVER_RESPONSE_TIMEOUT, kSilenceSecondes);
    Regler(CURLOPT_LOW_SPEED_LIMIT, 1L);
    Regler(CURLOPT_LOW_SPEED_TIME, kSilenceSecondes);
    Regler(CURLOPT_WRITEFUNCTION, Recevoir);
    Regler(CURLOPT_WRITEDATA, &Recu);
  }
  CURLcode Executer() { return curl_easy_perform(Poignee); }
  bool RienDeTel() const {
    long reponse = 0;
    curl_easy_getinfo(Poignee, CURLINFO_RESPONSE_CODE, &reponse);
    return reponse == kRienDeTel;
  }

  CURL* Poignee = nullptr;
  QByteArray Dossier, Utilisateur, MotDePasse, Recu;
};

TSiteFtp::TSiteFtp() = default;
TSiteFtp::~TSiteFtp() = default;

void TSiteFtp::Connecter(const QString& hote, const QString& utilisateur, const QString& motDePasse) {
  auto curl = std::make_unique<TCurl>();
  QString adresse = hote.trimmed();
  if (adresse.isEmpty()) throw Exception(u"l'adresse du site n'est pas connue (paramètres de l'école)."_s);
  if (!adresse.contains(u"://")) adresse.prepend(u"ftp://"_s);
  curl->Dossier = (adresse.endsWith(u'/') ? adresse : adresse + u'/').toUtf8();
  curl->Utilisateur = utilisateur.trimmed().toUtf8();
  curl->MotDePasse = motDePasse.toUtf8();
  curl->Preparer(curl->Dossier);
  curl->Regler(CURLOPT_NOBODY, 1L);
  if (const CURLcode code = curl->Executer(); code != CURLE_OK) Echouer(code);
  curl_ = std::move(curl);
  connecte_ = true;
}

void TSiteFtp::Deconnecter() {
  curl_.reset();
  connecte_ = false;
}

std::vector<QString> TSiteFtp::Lister() {
  curl_->Preparer(curl_->Dossier);
  curl_->Regler(CURLOPT_DIRLISTONLY, 1L);
  const CURLcode code = curl_->Executer();
  if (code != CURLE_OK && !curl_->RienDeTel()) Echouer(code);
  std::vector<QString> noms;
  if (code != CURLE_OK) return noms;
  ecartes_ = 0;
  for (const QByteArray& ligne : curl_->Recu.split('\n')) {
    const QString nom = NomDeFichier(ligne);
    if (!nom.isEmpty())
      noms.push_back(nom);
    else
      ecartes_ += ligne.trimmed().toLower().endsWith(".txt");
  }
  return noms;
}

bool TSiteFtp::Telecharger(const QString& nom, const QString& local) {
  curl_->Preparer(curl_->Dossier + nom.toUtf8().toPercentEncoding());
  const CURLcode code = curl_->Executer();
  if (code == CURLE_REMOTE_FILE_NOT_FOUND || (code != CURLE_OK && curl_->RienDeTel())) return false;
  if (code != CURLE_OK) Echouer(code);
  QSaveFile copie(local);
  if (!copie.open(QIODevice::WriteOnly) || copie.write(curl_->Recu) != curl_->Recu.size() || !copie.flush() ||
      !copie.commit())
    throw Exception(u"Le fichier « %1 » ne peut pas être écrit : %2"_s.arg(local, copie.errorString()));
  return true;
}

void TSiteFtp::Effacer(const QString& nom) {
  const QByteArray commande = "DELE " + nom.toUtf8();
  const std::unique_ptr<curl_slist, void (*)(curl_slist*)> apres(
      curl_slist_append(nullptr, commande.constData()), curl_slist_free_all);
  curl_->Preparer(curl_->Dossier);
  curl_->Regler(CURLOPT_NOBODY, 1L);
  curl_->Regler(CURLOPT_POSTQUOTE, apres.get());
  if (const CURLcode code = curl_->Executer(); code != CURLE_OK) Echouer(code);
}
