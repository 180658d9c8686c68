#include "support/ContextTestSupport.h"

#include "contexts/CResFileWriter.h"
#include "core/CUtility.h"
#include "persist/COutputStream.h"
#include "persist/CZlib.h"

#include <QBuffer>
#include <QImage>

#include <gtest/gtest.h>

#include <set>

namespace {

QString pictureOf(const QString& entry, const TestToken& token)
{
    return entry.isEmpty() ? token.Id + QStringLiteral(".png") : entry;
}

} // namespace

CKorvane& StartRoot(IProgressMonitor* progress, CKorvane::GuiFactory gui)
{
    auto root = std::make_shared<CKorvane>();
    root->SetGuiFactory(std::move(gui));
    InstallRoot(root);
    root->Constructor(progress);
    return *root;
}

TestModule TestModule::Titled(const QString& uniqueId, const QString& title)
{
    TestModule module;
    module.UniqueId = uniqueId;
    module.Title = title;
    return module;
}

QColor TestModule::ColorOf(const QString& entry)
{
    const size_t hash = qHash(entry.toLower(), 17);
    return QColor(static_cast<int>(hash & 0x7F) + 64, static_cast<int>((hash >> 8) & 0x7F) + 64,
                  static_cast<int>((hash >> 16) & 0x7F) + 64);
}

QByteArray TestModule::Picture(const QString& entry, QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(ColorOf(entry));
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

QString TestModule::Definition() const
{
    QString tabs;
    QStringList categories;
    for (const TestToken& t : Tokens) {
        if (!categories.contains(t.Category))
            categories.append(t.Category);
    }
    for (const QString& category : categories) {
        tabs += QStringLiteral("<category name=\"%1\">\n").arg(category);
        for (const TestToken& t : Tokens) {
            if (t.Category != category)
                continue;
            tabs += QStringLiteral("<token token_id=\"%1\" token_type=\"%2\">"
                                   "<pallet_image>%3</pallet_image><drag_image>%4</drag_image>"
                                   "<map_image>%5</map_image><caption>%6</caption>"
                                   "<click_region_x>%7</click_region_x>"
                                   "<click_region_y>%8</click_region_y>"
                                   "<click_region_w>%9</click_region_w>"
                                   "<click_region_h>%10</click_region_h>%11</token>\n")
                        .arg(t.Id, t.Type, pictureOf(t.Pallet, t), pictureOf(t.Drag, t),
                             pictureOf(t.Unit, t), t.Caption.isEmpty() ? t.Id : t.Caption)
                        .arg(t.Left)
                        .arg(t.Top)
                        .arg(t.Width)
                        .arg(t.Height)
                        .arg(t.Extra);
        }
        tabs += QStringLiteral("</category>\n");
    }
    return QStringLiteral(
               "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n"
               "<module_def format_version=\"1\">\n"
               "<game_info><title>%1</title><author>Tests</author><url>https://example.org/%2"
               "</url><copyright>none</copyright><min_kr_version>1.0</min_kr_version></game_info>\n"
               "<game_info_ex><new_game_image>icon.png</new_game_image></game_info_ex>\n"
               "<game_id><unique_id>%2</unique_id><version>%3</version></game_id>\n"
               "<board_settings><board_image>%4</board_image><label_font_name>Sans"
               "</label_font_name><label_font_size>8</label_font_size>"
               "<label_is_transparent>false</label_is_transparent>"
               "<label_text_html_color>#0000FF</label_text_html_color></board_settings>\n"
               "<image_settings><mask_html_color>#FF00FF</mask_html_color>"
               "<pallet_img_width>%5</pallet_img_width><pallet_img_height>%5</pallet_img_height>"
               "<map_image_width>%6</map_image_width><map_image_height>%6</map_image_height>"
               "</image_settings>\n<tabs>\n%7</tabs>\n"
               "<initial_setup_cmf>%8</initial_setup_cmf>\n</module_def>\n")
        .arg(Title.toHtmlEscaped(), UniqueId, Version, Board)
        .arg(PalletSize)
        .arg(UnitSize)
        .arg(tabs, InitialGame);
}

std::vector<std::pair<QString, QByteArray>> TestModule::Entries(QMap<QString, QByteArray> replace,
                                                                const QStringList& drop) const
{
    std::vector<std::pair<QString, QByteArray>> entries;
    std::set<QString> written;
    const auto add = [&](const QString& name, const QByteArray& bytes) {
        if (written.insert(name.toLower()).second && !drop.contains(name, Qt::CaseInsensitive))
            entries.emplace_back(name, replace.contains(name) ? replace.take(name) : bytes);
    };
    if (WithDefinition)
        add(QStringLiteral("module.def"), Definition().toUtf8());
    if (WithBoard)
        add(Board, Picture(Board, BoardSize));
    add(QStringLiteral("icon.png"), Picture(QStringLiteral("icon.png"), {16, 16}));
    for (const TestToken& t : Tokens) {
        for (const QString& entry :
             {pictureOf(t.Pallet, t), pictureOf(t.Drag, t), pictureOf(t.Unit, t)})
            add(entry, Picture(entry, {UnitSize, UnitSize}));
    }
    entries.insert(entries.end(), Extra.begin(), Extra.end());
    for (auto it = replace.cbegin(); it != replace.cend(); ++it)
        entries.emplace_back(it.key(), it.value());
    return entries;
}

QByteArray TestModule::Pack(const QMap<QString, QByteArray>& replace, const QStringList& drop) const
{
    CResFileWriter writer;
    for (const auto& [name, bytes] : Entries(replace, drop))
        writer.AddEntry(name, bytes);
    return writer.ToBytes();
}

QByteArray RawPack(std::int32_t count, const std::vector<RawEntry>& entries, const QByteArray& data)
{
    COutputStream directory;
    directory.Constructor(4096);
    directory.WriteLong(count);
    for (const RawEntry& e : entries) {
        directory.WriteSmallString(e.Name);
        directory.WriteLong(e.Position);
        directory.WriteLong(e.Stored);
        directory.WriteLong(e.Unpacked);
    }
    directory.Resize(directory.Offset(), true);
    const auto packed = CZlib().Compact(directory);
    QByteArray bytes;
    for (const std::int32_t value : {directory.Size(), packed->Size()})
        bytes.append(reinterpret_cast<const char*>(&value), 4);
    bytes.append(reinterpret_cast<const char*>(packed->Address()), packed->Size());
    return bytes + data;
}

QByteArray AppendRawEntries(const TestModule& module,
                            const std::vector<std::pair<QString, QByteArray>>& entries)
{
    std::vector<std::pair<QString, QByteArray>> all = module.Entries();
    all.insert(all.end(), entries.begin(), entries.end());

    // Every entry stored as it is; the data starts a little after the
    // directory, which readers accept.
    const auto directory = [&all](std::int32_t position) {
        std::vector<RawEntry> records;
        for (const auto& [name, data] : all) {
            const auto size = static_cast<std::int32_t>(data.size());
            records.push_back({name, position, size, size});
            position += size;
        }
        return records;
    };
    const auto count = static_cast<std::int32_t>(all.size());
    const auto dataStart = static_cast<std::int32_t>(RawPack(count, directory(0), {}).size() + 64);
    QByteArray bytes = RawPack(count, directory(dataStart), {});
    EXPECT_LE(bytes.size(), dataStart);
    bytes.append(QByteArray(dataStart - bytes.size(), '\0'));
    for (const auto& entry : all)
        bytes.append(entry.second);
    return bytes;
}
