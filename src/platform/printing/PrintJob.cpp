// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/printing/PrintJob.h"

#include <QPaintEngine>
#include <QPdfWriter>
#include <QPrinter>
#include <QSaveFile>

PrintJob::~PrintJob() = default;

namespace {

// Takes what is drawn and forgets it.
class NoPaper final : public QPaintEngine
{
public:
    NoPaper() : QPaintEngine(AllFeatures) {}
    bool begin(QPaintDevice* /*device*/) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState& /*state*/) override {}
    void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}
    void drawTextItem(const QPointF&, const QTextItem&) override {}
    void drawPolygon(const QPointF*, int, PolygonDrawMode) override {}
    Type type() const override { return User; }
};

// Measures as another device, and shows nothing. To begin on a printer would be to print.
class MeasuredLike final : public QPaintDevice
{
public:
    explicit MeasuredLike(const QPagedPaintDevice& like) : m_like(like) {}
    QPaintEngine* paintEngine() const override { return &m_engine; }

protected:
    int metric(PaintDeviceMetric what) const override
    {
        switch (what) {
        case PdmWidth:
            return m_like.width();
        case PdmHeight:
            return m_like.height();
        case PdmWidthMM:
            return m_like.widthMM();
        case PdmHeightMM:
            return m_like.heightMM();
        case PdmDpiX:
            return m_like.logicalDpiX();
        case PdmDpiY:
            return m_like.logicalDpiY();
        case PdmPhysicalDpiX:
            return m_like.physicalDpiX();
        case PdmPhysicalDpiY:
            return m_like.physicalDpiY();
        case PdmDevicePixelRatio:
            return 1;
        case PdmDevicePixelRatioScaled:
            return static_cast<int>(devicePixelRatioFScale());
        case PdmDepth:
            return m_like.depth();
        case PdmNumColors:
            return m_like.colorCount();
        default:
            return 0;
        }
    }

private:
    const QPagedPaintDevice& m_like;
    mutable NoPaper m_engine;
};

// Pages onto a paged device, which begins with its first page.
class PagedJob : public PrintJob
{
public:
    ~PagedJob() override
    {
        if (m_painter.isActive())
            m_painter.end();
    }

    int StartDoc(const QString& name) override
    {
        Name(name);
        return 1;
    }

    int StartPage() override
    {
        if (m_measuring.isActive())
            m_measuring.end();
        const bool isThere = m_painter.isActive() ? Paper().newPage() : m_painter.begin(&Paper());
        m_onPage = isThere && IsWell();
        return m_onPage ? 1 : -1;
    }

    int EndPage() override { return m_onPage && IsWell() ? 1 : -1; }

    int EndDoc() override
    {
        const bool isDone = !m_painter.isActive() || m_painter.end();
        return isDone && IsWell() ? 1 : -1;
    }

    void AbortDoc() override
    {
        if (m_painter.isActive())
            m_painter.end();
    }

    QPainter* Painter() override
    {
        if (m_painter.isActive())
            return &m_painter;
        if (!m_measured)
            m_measured = std::make_unique<MeasuredLike>(Paper());
        if (!m_measuring.isActive())
            m_measuring.begin(m_measured.get());
        return &m_measuring;
    }

protected:
    virtual QPagedPaintDevice& Paper() = 0;
    virtual void Name(const QString& name) = 0;
    virtual bool IsWell() const = 0; // nothing has failed so far

    void EndMeasuring()
    {
        if (m_measuring.isActive())
            m_measuring.end();
    }

private:
    std::unique_ptr<MeasuredLike> m_measured;
    QPainter m_measuring;
    QPainter m_painter;
    bool m_onPage = false;
};

class PrinterJob final : public PagedJob
{
public:
    explicit PrinterJob(std::unique_ptr<QPrinter> printer) : m_printer(std::move(printer)) {}
    ~PrinterJob() override
    {
        PagedJob::AbortDoc();
        EndMeasuring();
    }

    void AbortDoc() override
    {
        m_printer->abort();
        PagedJob::AbortDoc();
    }

protected:
    QPagedPaintDevice& Paper() override { return *m_printer; }
    void Name(const QString& name) override { m_printer->setDocName(name); }
    bool IsWell() const override
    {
        return m_printer->printerState() != QPrinter::Error &&
               m_printer->printerState() != QPrinter::Aborted;
    }

private:
    std::unique_ptr<QPrinter> m_printer;
};

// A device that remembers whether a write failed: the writer does not say so.
class WatchedDevice final : public QIODevice
{
public:
    explicit WatchedDevice(QIODevice& device) : m_device(device)
    {
        QIODevice::open(WriteOnly | Unbuffered);
    }
    bool isSequential() const override { return true; }
    bool HasFailed() const { return m_failed; }

protected:
    qint64 readData(char* /*data*/, qint64 /*count*/) override { return -1; }
    qint64 writeData(const char* data, qint64 count) override
    {
        if (m_failed || m_device.write(data, count) != count)
            m_failed = true;
        return count; // the pages go on being drawn, for nobody
    }

private:
    QIODevice& m_device;
    bool m_failed = false;
};

class PdfJob final : public PagedJob
{
public:
    PdfJob(QIODevice& device, const QPrinter& layout) : m_device(device), m_writer(&m_device)
    {
        SetUp(layout);
    }
    explicit PdfJob(const QPrinter& layout)
        : m_file(std::make_unique<QSaveFile>(layout.outputFileName())), m_device(*m_file),
          m_writer(&m_device)
    {
        SetUp(layout);
    }
    ~PdfJob() override
    {
        PagedJob::AbortDoc();
        EndMeasuring();
    }

    int StartDoc(const QString& name) override
    {
        if (m_file && !m_file->isOpen() && !m_file->open(QIODevice::WriteOnly))
            return -1;
        return PagedJob::StartDoc(name);
    }

    int EndDoc() override
    {
        const int result = PagedJob::EndDoc();
        if (!m_file)
            return result;
        if (result <= 0 || !m_begun)
            m_file->cancelWriting();
        // A commit forgets what went wrong when it wrote the last bytes.
        return (m_file->flush() && m_file->commit()) || !m_begun ? result : -1;
    }

    void AbortDoc() override
    {
        PagedJob::AbortDoc();
        if (m_file)
            m_file->cancelWriting();
    }

    int StartPage() override
    {
        m_begun = true;
        return PagedJob::StartPage();
    }

    QString File() const override { return m_file ? m_file->fileName() : QString(); }

protected:
    QPagedPaintDevice& Paper() override { return m_writer; }
    void Name(const QString& name) override { m_writer.setTitle(name); }
    bool IsWell() const override { return !m_device.HasFailed(); }

private:
    void SetUp(const QPrinter& layout)
    {
        m_writer.setResolution(layout.resolution());
        m_writer.setPageLayout(layout.pageLayout());
    }

    std::unique_ptr<QSaveFile> m_file; // null: the device is somebody else's
    WatchedDevice m_device;
    QPdfWriter m_writer;
    bool m_begun = false;
};

} // namespace

std::unique_ptr<PrintJob> MakePrintJob(std::unique_ptr<QPrinter> printer)
{
    if (!printer)
        return nullptr;
    if (!printer->outputFileName().isEmpty())
        return std::make_unique<PdfJob>(*printer);
    return std::make_unique<PrinterJob>(std::move(printer));
}

std::unique_ptr<PrintJob> MakePdfJob(QIODevice& device, const QPrinter& layout)
{
    return std::make_unique<PdfJob>(device, layout);
}
