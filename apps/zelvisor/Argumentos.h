#pragma once

#include <QCommandLineParser>
#include <QString>
#include <QStringList>

namespace zel {

// What the program has been asked for on the command line. File names keep bytes that are not UTF-8, see
// platform/qt/Rutas.h.
class Argumentos {
  public:
    Argumentos(int argc, const char* const* argv);
    Argumentos(const Argumentos&) = delete;
    Argumentos& operator=(const Argumentos&) = delete;
    ~Argumentos() = default;

    bool PideAyuda() const { return lector_.isSet(ayuda_); }
    bool PideVersion() const { return lector_.isSet(version_); }
    bool PideRegistro() const { return lector_.isSet(registra_); }
    bool PideAnularRegistro() const { return lector_.isSet(anula_); }
    bool ParaElSistema() const { return lector_.isSet(sistema_); }
    // What makes no sense, in words for the user; empty when all does.
    const QString& Error() const noexcept { return error_; }

    // "exportar", "info", "verificar" or "convertir"; empty where a window is to be opened.
    const QString& Orden() const noexcept { return orden_; }
    // The order's files, or the schematic to be opened.
    const QStringList& Archivos() const noexcept { return archivos_; }
    // The values of the options; null for those not given.
    QString Ancho() const { return Valor(ancho_); }
    QString Corregir() const { return Valor(corregir_); }
    // Qt is told by an argument where to draw.
    bool DaPlataforma() const { return lector_.isSet(QStringLiteral("platform")); }

    static std::string Uso();
    static std::string Ayuda();

  private:
    QString Valor(const QCommandLineOption& opcion) const;
    void BuscaErrores(const QStringList& palabras);

    QCommandLineParser lector_;
    const QCommandLineOption ayuda_;
    const QCommandLineOption version_;
    const QCommandLineOption ancho_;
    const QCommandLineOption corregir_;
    const QCommandLineOption registra_;
    const QCommandLineOption anula_;
    const QCommandLineOption sistema_;
    QString error_;
    QString orden_;
    QStringList archivos_;
};

}  // namespace zel
