// SPDX-License-Identifier: MIT
#include "ManualPages.h"

#include <QDir>
#include <QFile>
#include <QSet>

#include <cmark-gfm-core-extensions.h>
#include <cmark-gfm.h>

#include <cstdlib>
#include <memory>
#include <vector>

namespace {
const QString contentsPage = QStringLiteral("index");
const QString pageSuffix = QStringLiteral(".md");

// The text browser of the program takes colours and letters from the desktop; ":root" and "max-width" are for the
// others.
const char head[] = R"(<!DOCTYPE html>
<html lang="%1">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width">
<meta name="color-scheme" content="light dark">
<title>%2</title>
<style>
:root { max-width: 54em; margin: auto; padding: 1em; font-family: sans-serif; line-height: 1.4; }
table { border-collapse: collapse; margin-top: 8px; margin-bottom: 8px; }
th, td { border: 1px solid gray; padding: 4px; text-align: left; }
img { max-width: 100%; }
</style>
</head>
<body>
)";
const char tail[] = "</body>\n</html>\n";

struct FreeNode
{
    void operator()(cmark_node *node) const { cmark_node_free(node); }
    void operator()(cmark_parser *parser) const { cmark_parser_free(parser); }
    void operator()(cmark_iter *iter) const { cmark_iter_free(iter); }
    void operator()(char *text) const { std::free(text); }
};
template<class T>
using Owned = std::unique_ptr<T, FreeNode>;

QByteArray contentOf(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

std::vector<cmark_node *> nodesOf(cmark_node *root, cmark_node_type type)
{
    std::vector<cmark_node *> found;
    const Owned<cmark_iter> iter(cmark_iter_new(root));
    while (cmark_iter_next(iter.get()) != CMARK_EVENT_DONE) {
        cmark_node *node = cmark_iter_get_node(iter.get());
        if (cmark_node_get_type(node) == type && (found.empty() || found.back() != node)) {
            found.push_back(node);
        }
    }
    return found;
}

QString textOf(cmark_node *node)
{
    QString text;
    for (const cmark_node_type type : {CMARK_NODE_TEXT, CMARK_NODE_CODE}) {
        for (cmark_node *part : nodesOf(node, type)) {
            text += QString::fromUtf8(cmark_node_get_literal(part));
        }
    }
    return text;
}

QString urlOf(cmark_node *node)
{
    return QString::fromUtf8(cmark_node_get_url(node));
}

// A page of the manual as a tree of nodes, which can be changed before it is written as HTML.
class Page final
{
public:
    explicit Page(const QByteArray &markdown)
    {
        cmark_gfm_core_extensions_ensure_registered();
        m_parser.reset(cmark_parser_new(CMARK_OPT_DEFAULT));
        cmark_parser_attach_syntax_extension(m_parser.get(), cmark_find_syntax_extension("table"));
        cmark_parser_feed(m_parser.get(), markdown.constData(), static_cast<size_t>(markdown.size()));
        m_root.reset(cmark_parser_finish(m_parser.get()));
    }

    std::vector<cmark_node *> links() const { return nodesOf(m_root.get(), CMARK_NODE_LINK); }
    std::vector<cmark_node *> pictures() const { return nodesOf(m_root.get(), CMARK_NODE_IMAGE); }
    std::vector<cmark_node *> headings() const { return nodesOf(m_root.get(), CMARK_NODE_HEADING); }
    QString title() const { return headings().empty() ? QString() : textOf(headings().front()); }
    QByteArray html() const
    {
        const Owned<char> text(
            cmark_render_html(m_root.get(), CMARK_OPT_DEFAULT, cmark_parser_get_syntax_extensions(m_parser.get())));
        return text.get();
    }

private:
    Owned<cmark_parser> m_parser;
    Owned<cmark_node> m_root;
};

// Puts the pages of a folder together.
class Book final
{
public:
    explicit Book(const QString &folder)
        : m_folder(folder)
    {
    }

    BuiltManual build(const QString &language)
    {
        const Page contents(contentOf(fileOf(contentsPage)));
        m_title = contents.title();
        const QStringList pages = pagesOf(contents);
        m_built.html = QString::fromLatin1(head).arg(language, m_title.toHtmlEscaped()).toUtf8();
        for (const QString &page : pages) {
            addPage(page);
        }
        m_built.html += tail;
        reportForgottenPages(pages);
        reportDeadLinks();
        return m_built;
    }

private:
    QString fileOf(const QString &page) const { return m_folder.filePath(page + pageSuffix); }
    QStringList pagesOf(const Page &contents) const;
    void addPage(const QString &name);
    void addAnchors(const QString &name, const Page &page);
    void turnLinks(const QString &name, const Page &page);
    void embedPictures(const QString &name, const Page &page);
    void reportForgottenPages(const QStringList &pages);
    void reportDeadLinks();
    void report(const QString &page, const QString &what)
    {
        m_built.problems << page + pageSuffix + QLatin1String(": ") + what;
    }

    const QDir m_folder;
    QString m_title;
    BuiltManual m_built;
    QSet<QString> m_anchors;
    std::vector<std::pair<QString, QString>> m_links; // page that links, anchor
};

// The contents, then what they link to.
QStringList Book::pagesOf(const Page &contents) const
{
    QStringList pages(contentsPage);
    for (cmark_node *link : contents.links()) {
        const QString file = urlOf(link).section(QLatin1Char('#'), 0, 0);
        if (file.endsWith(pageSuffix)) {
            pages << file.chopped(pageSuffix.size());
        }
    }
    pages.removeDuplicates();
    return pages;
}

// Each page but the contents leads back to them.
void Book::addPage(const QString &name)
{
    const QByteArray markdown = contentOf(fileOf(name));
    if (markdown.isEmpty()) {
        report(name, QStringLiteral("cannot be read"));
        return;
    }
    const Page page(markdown);
    addAnchors(name, page);
    turnLinks(name, page);
    embedPictures(name, page);
    m_built.html += page.html();
    if (name != contentsPage) {
        m_built.html +=
            "<p><a href=\"#" + contentsPage.toUtf8() + "\">" + m_title.toHtmlEscaped().toUtf8() + "</a></p>\n";
    }
    m_built.html += "<hr>\n";
}

// The first heading is that of the page. Each has one anchor: the text browser of the program forgets others before it.
void Book::addAnchors(const QString &name, const Page &page)
{
    bool first = true;
    for (cmark_node *heading : page.headings()) {
        const QString anchor = first ? name : name + QLatin1Char('.') + headingAnchor(textOf(heading));
        cmark_node *node = cmark_node_new(CMARK_NODE_CUSTOM_INLINE);
        cmark_node_set_on_enter(node, QStringLiteral("<a name=\"%1\"></a>").arg(anchor).toUtf8().constData());
        cmark_node_prepend_child(heading, node); // which owns it
        m_anchors << anchor;
        first = false;
    }
}

void Book::turnLinks(const QString &name, const Page &page)
{
    for (cmark_node *link : page.links()) {
        const QString url = urlOf(link);
        const QString file = url.section(QLatin1Char('#'), 0, 0);
        const QString place = url.section(QLatin1Char('#'), 1);
        if (!file.isEmpty() && !file.endsWith(pageSuffix)) {
            report(name, QStringLiteral("%1 leads out of the manual").arg(url));
            continue;
        }
        const QString target = file.isEmpty() ? name : file.chopped(pageSuffix.size());
        const QString anchor = place.isEmpty() ? target : target + QLatin1Char('.') + place;
        m_links.emplace_back(name, anchor);
        cmark_node_set_url(link, ('#' + anchor.toUtf8()).constData());
    }
}

void Book::embedPictures(const QString &name, const Page &page)
{
    for (cmark_node *picture : page.pictures()) {
        const QByteArray content = contentOf(m_folder.filePath(urlOf(picture)));
        if (content.isEmpty()) {
            report(name, QStringLiteral("there is no %1").arg(urlOf(picture)));
        }
        cmark_node_set_url(picture, ("data:image/png;base64," + content.toBase64()).constData());
    }
}

void Book::reportForgottenPages(const QStringList &pages)
{
    for (QString file : m_folder.entryList({QLatin1Char('*') + pageSuffix}, QDir::Files, QDir::Name)) {
        file.chop(pageSuffix.size());
        if (!pages.contains(file)) {
            report(file, QStringLiteral("is not in the contents"));
        }
    }
}

void Book::reportDeadLinks()
{
    for (const auto &[page, anchor] : m_links) {
        if (!m_anchors.contains(anchor)) {
            report(page, QStringLiteral("there is no %1").arg(anchor));
        }
    }
}
} // namespace

BuiltManual buildManual(const QString &folder, const QString &language)
{
    return Book(folder).build(language);
}

QString headingAnchor(const QString &heading)
{
    QString anchor;
    for (const QChar c : heading.toLower()) {
        if (c.isLetterOrNumber() || c == QLatin1Char('-') || c == QLatin1Char('_')) {
            anchor += c;
        } else if (c.isSpace()) {
            anchor += QLatin1Char('-');
        }
    }
    return anchor;
}
