// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Transforms/Formatters/ZEVValueTransformer.h>

#include <ZEVGlobalUtils/Transforms/Formatters/ByteSizeTransformer.h>
#include <ZEVGlobalUtils/Transforms/Formatters/FileSizeTransformer.h>
#include <ZEVGlobalUtils/Transforms/Formatters/ResolutionTransformer.h>
#include <ZEVGlobalUtils/Transforms/Formatters/TagSizeTransformer.h>
#include <ZEVGlobalUtils/Transforms/Formatters/ZEVMatchesCountDisplayTransformer.h>
#include <ZEVGlobalUtils/Transforms/Formatters/ZEVResultsCountDisplayTransformer.h>
#include <ZEVGlobalUtils/Transforms/Formatters/ZEVSelectedObjectsToOneTransformer.h>
#include <ZEVGlobalUtils/Transforms/Formatters/ZEVStringIsEmptyOrNil.h>
#include <ZEVGlobalUtils/Transforms/Formatters/ZEVStringIsNotEmpty.h>

#include <QMap>
#include <QMutex>

using namespace Qt::StringLiterals;

namespace {

struct Registry {
    QMutex mutex;
    QMap<QString, std::shared_ptr<const ZEVValueTransformer>> transformers{
        {u"FileSizeTransformer"_s, std::make_shared<FileSizeTransformer>()},
        {u"ByteSizeTransformer"_s, std::make_shared<ByteSizeTransformer>()},
        {u"TagSizeTransformer"_s, std::make_shared<TagSizeTransformer>()},
        {u"ResolutionTransformer"_s, std::make_shared<ResolutionTransformer>()},
        {u"ZEVMatchesCountDisplayTransformer"_s, std::make_shared<ZEVMatchesCountDisplayTransformer>()},
        {u"ZEVResultsCountDisplayTransformer"_s, std::make_shared<ZEVResultsCountDisplayTransformer>()},
        {u"ZEVSelectedObjectsToOneTransformer"_s, std::make_shared<ZEVSelectedObjectsToOneTransformer>()},
        {u"ZEVStringIsNotEmpty"_s, std::make_shared<ZEVStringIsNotEmpty>()},
        {u"ZEVStringIsEmptyOrNil"_s, std::make_shared<ZEVStringIsEmptyOrNil>()},
    };
};

Registry &registry()
{
    static Registry shared;
    return shared;
}

} // namespace

ZEVValueTransformer::~ZEVValueTransformer() = default;

QVariant ZEVValueTransformer::reverseTransformedValue(const QVariant &value) const
{
    return transformedValue(value);
}

std::shared_ptr<const ZEVValueTransformer> ZEVValueTransformer::valueTransformerForName(const QString &name)
{
    const QMutexLocker lock(&registry().mutex);
    return registry().transformers.value(name);
}

void ZEVValueTransformer::setValueTransformer(const std::shared_ptr<const ZEVValueTransformer> &transformer,
                                              const QString &name)
{
    const QMutexLocker lock(&registry().mutex);
    registry().transformers.insert(name, transformer);
}

QStringList ZEVValueTransformer::valueTransformerNames()
{
    const QMutexLocker lock(&registry().mutex);
    return registry().transformers.keys();
}
