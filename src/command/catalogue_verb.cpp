#include "base/text_encoding.h"
#include "command/catalogue_folder.h"
#include "command/record_writer.h"
#include "command/selection_verbs.h"

namespace zandrell {
namespace {

using enum KatalogFeld;

// What the list of units shows of a record; the other fields are not read by this program.
constexpr std::array kListedFields = {KatTyp,     KatTyp2,    KatWert, KatWert2,   KatBasis,
                                      KatGewicht, KatVolumen, KatWurf, KatLamelle, KatLeistung,
                                      KatAntrieb, KatText10,  KatBild};

bool Finished(RecordWriter& writer, std::string& error) {
    if (writer.Finish()) return true;
    error = "the output cannot be written";
    return false;
}

bool ListKinds(const CatalogueFolder& folder, const CatalogueRequest& request, RecordWriter& writer,
               std::string& error) {
    for (const int kind : kKatalogArten) {
        const std::string index = KatalogIndex(request.ModuleTag, kind);
        int series = 0, units = 0;
        const auto count = [&](const ScannedSeries& scanned) {
            ++series;
            units += scanned.serie.Units();
        };
        if (!folder.ScanIfThere(index, request.hidden, count)) continue;
        writer.Number(kind).Text(FamilyName(FamilyOf(kind))).Text(index);
        writer.Number(series).Number(units).EndRecord();
    }
    return Finished(writer, error);
}

void WriteSeriesName(const ScannedSeries& scanned, RecordWriter& writer) {
    const std::string text = Trimmed(scanned.line.SerieText);
    writer.Text(MakerOf(text)).Text(SeriesNameOf(text));
    writer.Text(KatalogDateiOf(scanned.line.SerieDatei));
}

bool ListSeries(const CatalogueFolder& folder, const CatalogueRequest& request,
                RecordWriter& writer, std::string& error) {
    const auto write = [&](const ScannedSeries& scanned) {
        WriteSeriesName(scanned, writer);
        writer.Number(static_cast<double>(AddressOf(scanned.line)));
        writer.Number(scanned.serie.Units()).Text(scanned.hidden ? "yes" : "no").EndRecord();
    };
    const std::string index = KatalogIndex(request.ModuleTag, *request.KatalogArt);
    return folder.Scan(index, request.hidden, write, error) && Finished(writer, error);
}

bool ListUnits(const CatalogueFolder& folder, const CatalogueRequest& request, RecordWriter& writer,
               std::string& error) {
    const auto write = [&](const ScannedSeries& scanned) {
        const int units = scanned.serie.Units();
        for (int i = 1; i <= units; ++i) {
            WriteSeriesName(scanned, writer);
            writer.Number(static_cast<double>(AddressOf(scanned.line) + i));
            for (const auto field : kListedFields) writer.Text(scanned.serie.Satz(i).Text(field));
            writer.EndRecord();
        }
    };
    const std::string index = KatalogIndex(request.ModuleTag, *request.KatalogArt);
    return folder.Scan(index, request.hidden, write, error) && Finished(writer, error);
}

std::vector<std::string_view> UnitColumns() {
    std::vector<std::string_view> columns = {"maker", "series", "file", "record"};
    for (const auto field : kListedFields) columns.push_back(PlaceOf(field).name);
    return columns;
}

}  // namespace

bool RunCatalogue(const NamedFolder& data, const CatalogueRequest& request, RowFormat format,
                  const RowStreams& streams, std::string& error) {
    const CatalogueFolder folder(data, streams.reports);
    if (!request.KatalogArt) {
        RecordWriter writer({"kind", "family", "index", "series", "units"}, format, streams.output);
        return ListKinds(folder, request, writer, error);
    }
    if (request.units) {
        RecordWriter writer(UnitColumns(), format, streams.output);
        return ListUnits(folder, request, writer, error);
    }
    RecordWriter writer({"maker", "series", "file", "address", "units", "hidden"}, format,
                        streams.output);
    return ListSeries(folder, request, writer, error);
}

}  // namespace zandrell
