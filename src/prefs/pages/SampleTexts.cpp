// SPDX-License-Identifier: GPL-3.0-or-later
#include "prefs/pages/SampleTexts.h"

#include <QLatin1String>

namespace {

struct Row
{
    const char* file;
    const char* text;
};

constexpr const char* kSql = "/* What was sold since March */\n"
                             "SELECT c.name, COUNT(*) AS orders, SUM(o.total) * 1.19\n"
                             "FROM customers c\n"
                             "JOIN orders o ON o.customer = c.id -- all of them\n"
                             "WHERE o.placed >= '2024-03-01' AND \"status\" <> 'open'\n"
                             "GROUP BY c.name\n"
                             "HAVING COUNT(*) > 10;\n"
                             "INSERT INTO log (what) VALUES ('done');\n";

constexpr Row kRows[] = {
    {"TransactSQL.xml", "-- What was sold since March\n"
                        "DECLARE @since datetime = '2024-03-01';\n"
                        "SELECT c.[name], COUNT(*) AS orders, SUM(o.total) * 1.19\n"
                        "FROM dbo.customers c JOIN orders o ON o.customer = c.id\n"
                        "WHERE o.placed >= @since AND \"status\" <> N'open'\n"
                        "GROUP BY c.[name];\n"
                        "/* and the system */ EXEC sp_who; SELECT @@ROWCOUNT FROM sysobjects;\n"
                        "GO\n"},
    {"PLSQL.xml", "-- What was sold since March\n"
                  "DECLARE\n"
                  "  total NUMBER(10, 2) := 0;\n"
                  "BEGIN\n"
                  "  SELECT SUM(o.total) * 1.19 INTO total\n"
                  "  FROM orders o WHERE o.status <> 'open'; /* all of them */\n"
                  "  DBMS_OUTPUT.PUT_LINE('Total: ' || TO_CHAR(total));\n"
                  "END;\n/\n"},
    {"HTML.xml",
     "<!DOCTYPE html>\n<html lang=\"en\">\n<!-- a page -->\n<body class=\"wide\">\n"
     "  <p style='color: red'>Fish &amp; chips</p>\n"
     "  <script>var count = 10; // of them\n  if (count > 3) alert(\"many\");</script>\n"
     "</body>\n</html>\n"},
    {"XML.xml", "<?xml version=\"1.0\"?>\n<!-- what was sold -->\n<orders count=\"2\">\n"
                "  <order id='17'>Fish &amp; chips</order>\n"
                "  <note><![CDATA[as it is: <b>]]></note>\n</orders>\n"},
    {"CSS.xml",
     "/* the page */\n@import url(\"base.css\");\nbody > .wide:hover {\n"
     "  color: #336699 !important;\n  margin: 0 4px;\n}\n#head::before { content: 'x' }\n"},
    {"Cpp.xml", "// What was sold\n#include <vector>\n/** Sums up. @return the total */\n"
                "double Total(const std::vector<double>& sums)\n{\n    double total = 0.0;\n"
                "    for (double sum : sums)\n        total += sum * 1.19;\n"
                "    return total > 10 ? total : 'x'; /* \"odd\" */\n}\n"},
    {"VisualBasic.xml", "' What was sold\nPublic Function Total(ByVal count As Integer) As Double\n"
                        "    Dim name As String = \"orders\"\n    If count > 10 Then\n"
                        "        Total = count * 1.19\n    End If\nEnd Function\n"},
    {"Batch.xml",
     "@echo off\nrem what was sold\nset folder=C:\\orders\n:again\n"
     "if exist \"%folder%\\*.sql\" (\n  copy %folder%\\*.sql backup > nul\n)\ngoto again\n"},
    {"Properties.xml", "# what was sold\n[orders]\nfolder=/var/orders\ncount: 10\n; a remark\n"
                       "@default=yes\n"},
    {"Makefile.xml", "# what is built\nCC = gcc\nSOURCES := $(wildcard *.c)\n\n"
                     "all: orders\n\norders: $(SOURCES)\n\t$(CC) -o $@ $^\n\n!include rules\n"},
    {"Diff.xml", "diff -u orders.sql orders.new\n--- orders.sql\n+++ orders.new\n@@ -1,3 +1,3 @@\n"
                 " SELECT name\n-FROM orders\n+FROM customers\n WHERE total > 10\n"},
    {"Perl.xml",
     "# what was sold\nuse strict;\nmy %total = (fish => 10, chips => 2.5);\n"
     "foreach my $name (sort keys %total) {\n"
     "    print \"$name: $total{$name}\\n\" if $name =~ /^f.*h$/;\n}\nmy @all = qw(a b);\n"},
    {"PHP.xml", "<h1 class=\"head\">Orders</h1>\n<?php\n// what was sold\n$total = 10 * 1.19;\n"
                "/* all of them */\nforeach ($orders as $order) {\n"
                "    echo \"Sold: $order\" . ' at once';\n}\n?>\n"},
    {"LaTeX.xml", "% what was sold\n\\documentclass{article}\n\\begin{document}\n"
                  "\\section{Orders}\nA total of $\\sum_{i} x_i > 10$ in \\emph{March}.\n"
                  "\\[ y = 1.19 x \\]\n\\end{document}\n"},
    {"Messages.xml", "orders.c:17: error: expected ';' before '}' token\n"
                     "orders.cpp(12) : error C2065: 'total': undeclared identifier\n"
                     "  File \"orders.py\", line 3, in <module>\n"
                     "Everything else is said as it is.\n"},
    {"Text.xml", "The quick brown fox jumps over the lazy dog.\n0123456789  (a) [b] {c}\n"},
    {"Default.xml", "The quick brown fox jumps over the lazy dog.\n0123456789  (a) [b] {c}\n"},
};

} // namespace

QString SampleTextOf(const QString& languageFile)
{
    for (const Row& row : kRows) {
        if (languageFile == QLatin1String(row.file))
            return QString::fromUtf8(row.text);
    }
    return QString::fromUtf8(kSql);
}
