#include "Model.h"

#include <charconv>
#include <cmath>
#include <cstdint>
#include <fstream>
#include <map>
#include <stdexcept>

// A file is a list of entries in UTF-8: a line with the name in brackets, and below it a line for each value,
// key=value. Choices from a table are kept by name, so that the table may grow.

namespace
{
/// Calls the visitor for each value with its key: the one list of what is kept.
template <class Values, class Visitor>
void VisitValues(Values& c, Visitor&& visit)
{
    visit.Choice("beam", c.beam, Profiles());
    visit.Choice("column", c.column, Profiles());
    visit.Choice("steel", c.steel, SteelGrades());
    visit.Choice("boltSize", c.boltSize, BoltSizes());
    visit.Choice("boltClass", c.boltClass, BoltClasses());
    visit.Whole("boltRows", c.boltRows, 2, 99);
    visit.Number("endDistance", c.endDistance_m);
    visit.Number("pitch", c.pitch_m);
    visit.Number("gauge", c.gauge_m);
    visit.Number("plateThickness", c.plateThickness_m);
    visit.Number("plateHeight", c.plateHeight_m);
    visit.Number("plateWidth", c.plateWidth_m);
    visit.Number("flangeWeld", c.flangeWeld_m);
    visit.Number("webWeld", c.webWeld_m);
    for (size_t i = 0; i < c.actions.size(); ++i)
    {
        const std::string key = "action" + std::to_string(i);
        visit.Number(key + ".moment", c.actions[i].moment_Nm);
        visit.Number(key + ".shear", c.actions[i].shear_N);
        visit.Number(key + ".axial", c.actions[i].axial_N);
    }
    for (size_t i = 0; i < c.parts.size(); ++i)
    {
        const std::string key = "part" + std::to_string(i);
        visit.Text(key + ".mark", c.parts[i].mark);
        visit.Whole(key + ".count", c.parts[i].count, 1, 9999);
        visit.Number(key + ".length", c.parts[i].length_m);
        visit.Whole(key + ".color", c.parts[i].color, 1, 255);
    }
    visit.Whole("drawing.dimensionEnds", c.drawing.dimensionEnds, 0, 20);
    visit.Whole("drawing.dimensionText", c.drawing.dimensionText, 0, 5);
    visit.Whole("drawing.hatch", c.drawing.hatch, 0, 9);
    visit.Whole("drawing.dimensionColor", c.drawing.dimensionColor, 0, 0xFFFFFF);
    visit.Text("drawing.font", c.drawing.font);
    visit.Number("drawing.textHeight", c.drawing.textHeight_m);
    visit.Whole("drawing.textColor", c.drawing.textColor, 1, 255);
    visit.Whole("drawing.bold", c.drawing.bold, 0, 1);
    visit.Whole("drawing.italic", c.drawing.italic, 0, 1);
    visit.Whole("lengths.unit", c.lengths.unit, 0, 5);
    visit.Whole("lengths.decimals", c.lengths.decimals, 0, 15);
    visit.Whole("lengths.symbol", c.lengths.symbol, 0, 1);
}

std::string ToUtf8(const std::wstring& text)
{
    const std::u8string bytes = std::filesystem::path(text).u8string();
    return std::string(bytes.begin(), bytes.end());
}

std::wstring FromUtf8(const std::string& bytes)
{
    return std::filesystem::path(std::u8string(bytes.begin(), bytes.end())).wstring();
}

class CWriter
{
public:
    explicit CWriter(std::ostream& out) : m_out(out) {}

    template <class Row>
    void Choice(const std::string& key, int index, std::span<const Row> table)
    {
        Text(key, table[static_cast<size_t>(index)].name);
    }
    template <class Value>
    void Whole(const std::string& key, Value value, int, int)
    {
        m_out << key << '=' << value << '\n';
    }
    void Number(const std::string& key, double value)
    {
        char text[32];
        const auto end = std::to_chars(text, text + sizeof text, value).ptr; // the shortest that reads back
        m_out << key << '=' << std::string_view(text, static_cast<size_t>(end - text)) << '\n';
    }
    void Text(const std::string& key, const std::wstring& text)
    {
        m_out << key << '=' << ToUtf8(text) << '\n';
    }

private:
    std::ostream& m_out;
};

class CReader
{
public:
    explicit CReader(const std::map<std::string, std::string>& texts) : m_texts(texts) {}

    template <class Row>
    void Choice(const std::string& key, int& index, std::span<const Row> table)
    {
        std::wstring name;
        Text(key, name);
        if (const int found = IndexOf(table, name); found >= 0)
            index = found;
    }
    template <class Value>
    void Whole(const std::string& key, Value& value, int least, int most)
    {
        int read = 0;
        if (Parse(key, read) && read >= least && read <= most)
            value = static_cast<Value>(read);
    }
    void Number(const std::string& key, double& value)
    {
        double read = 0;
        if (Parse(key, read) && std::isfinite(read))
            value = read;
    }
    void Text(const std::string& key, std::wstring& text)
    {
        if (const auto found = m_texts.find(key); found != m_texts.end())
            text = FromUtf8(found->second);
    }

private:
    template <class Value>
    bool Parse(const std::string& key, Value& value) const
    {
        const auto found = m_texts.find(key);
        if (found == m_texts.end())
            return false;
        const std::string& text = found->second;
        return std::from_chars(text.data(), text.data() + text.size(), value).ec == std::errc();
    }

    const std::map<std::string, std::string>& m_texts;
};

[[noreturn]] void Fail(const std::filesystem::path& path)
{
    const std::u8string name = path.u8string();
    throw std::runtime_error(std::string(name.begin(), name.end()));
}
} // namespace

std::vector<NamedConnection> ReadConnections(const std::filesystem::path& path)
{
    std::vector<NamedConnection> connections;
    if (!std::filesystem::exists(path))
        return connections;
    std::ifstream in(path); // lines may end as an editor leaves them
    if (!in)
        Fail(path);

    std::map<std::string, std::string> texts;
    const auto finish = [&]
    {
        if (!connections.empty())
            VisitValues(connections.back().values, CReader(texts));
        texts.clear();
    };
    for (std::string line; std::getline(in, line);)
    {
        const size_t sign = line.find('=');
        if (line.size() >= 2 && line.front() == '[' && line.back() == ']')
        {
            finish();
            connections.push_back({FromUtf8(line.substr(1, line.size() - 2)), {}});
        }
        else if (sign != std::string::npos)
            texts[line.substr(0, sign)] = line.substr(sign + 1);
    }
    finish();
    return connections;
}

void WriteConnections(const std::filesystem::path& path, const std::vector<NamedConnection>& connections)
{
    std::filesystem::path written = path;
    written += L".new";
    std::error_code error;
    std::filesystem::create_directories(path.parent_path(), error);
    std::ofstream out(written, std::ios::binary);
    for (const NamedConnection& connection : connections)
    {
        out << '[' << ToUtf8(connection.name) << "]\n";
        VisitValues(connection.values, CWriter(out));
    }
    out.close();
    if (out)
        std::filesystem::rename(written, path, error);
    if (!out || error)
        Fail(path);
}
