// SPDX-License-Identifier: Apache-2.0
#include "batch/BatchFixture.h"

#include "batch/Batch.h"

#include <QXmlStreamReader>

#include <iterator>
#include <sstream>

namespace tarsil::test {

BatchResult runBatch(const std::vector<std::string>& arguments)
{
    std::ostringstream out;
    std::ostringstream err;
    const int status = batch::runBatch(arguments, out, err);
    return {status, out.str(), err.str()};
}

std::string svgTexts(const std::string& path)
{
    QXmlStreamReader xml(QByteArray::fromStdString(fileBytes(path)));
    std::string texts;
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == u"text")
            texts += xml.readElementText().trimmed().toStdString() + "|";
    }
    EXPECT_FALSE(xml.hasError());
    return texts;
}

std::string BatchFixture::writeEv2(std::string_view name) const
{
    const auto row = [](const std::string& mode, const std::string& point, const std::string& speed,
                        const std::string& damping, const std::string& frequency) {
        return mode + "|" + point + "|1.5|-2.5||" + speed + "|" + damping + "|" + frequency + "|||"
            + frequency + "0||0.2||0.3||0.4||0.5||\n";
    };
    return m_folder.write(name,
                          "[PROCESSING DATA INFO]\n"
                          "Program_version=7.1\n"
                          "EV2_version=2\n"
                          "Running_date=05.04.2001\n"
                          "\n"
                          "[MODEL DATA INFO]\n"
                          "Nastran_version=70.7\n"
                          "Flutter_method=PK\n"
                          "Airplane=QRX190\n"
                          "Script=run.sh\n"
                          "Mass_config=FULL \"A\"\n"
                          "Mach_number=0.78\n"
                          "Struct_modes=20\n"
                          "Aeroel_modes=2\n"
                          "No_of_speeds=3\n"
                          "Analysis_type=SYM\n"
                          "Modif(1)=stiffer\tpylon\n"
                          "Legend(1)=nominal\n"
                          "Legend(2)=Fl\xFCgel\n" // Windows-1252
                          "\n"
                          "[RESULT DATA SUMMARY]\n"
                          "-\n-\n-\n-\n"
                              + row("3", "1", "300", "-1", "4") + row("3", "2", "400", "1", "6")
                              + row("5", "1", "200", "-1", "8") + row("5", "2", "300", "1", "10")
                              + row("5", "3", "400", "-1", "14"));
}

std::string BatchFixture::writeEvm(std::string_view name) const
{
    return m_folder.write(name,
                          "\n\n\n" + std::string(60, ' ')
                              + "   2       1\n"
                                "  7  0.100  100.000 5.00000E-01    4.000"
                                "  7  0.200  200.000-5.00000E-01    8.000\n");
}

std::size_t BatchFixture::fileCount() const
{
    const std::filesystem::directory_iterator entries(m_folder.path());
    return static_cast<std::size_t>(std::distance(begin(entries), end(entries)));
}

} // namespace tarsil::test
