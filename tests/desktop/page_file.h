#pragma once

#include <QtCore/QTemporaryFile>

#include <string>
#include <string_view>

/// A page on the disk for as long as this lives.
class PageFile {
public:
    explicit PageFile(std::string_view body) : file_(QStringLiteral("XXXXXX.html")) {
        file_.setFileTemplate(QStringLiteral("/tmp/murvane-page-XXXXXX.html"));
        if (!file_.open()) qFatal("no temporary file");
        const std::string page =
            "<!DOCTYPE html><html><head><meta charset='utf-8'></head>"
            "<body style='margin:0;background:#111827;color:white'>" +
            std::string(body) + "</body></html>\r\n";
        file_.write(page.data(), static_cast<qint64>(page.size()));
        file_.close();
    }

    [[nodiscard]] std::string url() const { return "file://" + file_.fileName().toStdString(); }

private:
    QTemporaryFile file_;
};
