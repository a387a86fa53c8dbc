#include "rendering/pass_chain_runner.h"

#include "rendering/image_transfer.h"
#include "rendering/multi_scale_blur.h"
#include "rendering/rendering_log.h"

#include <vector>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

using Picture = PassChain::Picture;

/// The pictures that a step reads.
QList<Picture> inputsOf(const PassChain::Step &step)
{
    if (const auto *pass = std::get_if<PassChain::Pass>(&step.work))
        return pass->inputs;
    const auto *blur = std::get_if<PassChain::Blur>(&step.work);
    return blur ? QList{blur->input} : QList<Picture>();
}

/// What a step has made, in one of two forms.
struct MadePicture
{
    OwnedTexture texture;
    std::unique_ptr<QOpenGLFramebufferObject> framebuffer;

    GLuint name() const { return framebuffer ? framebuffer->texture() : texture.name(); }
};

/// One run of a chain. The context is current while it carries steps out.
class PassChainRun
{
public:
    PassChainRun(FilterPassDrawer &passes, const PassChain &chain, Picture result)
        : m_passes(passes)
        , m_chain(chain)
        , m_lastUse(chain.steps().size(), kNever)
        , m_made(size_t(chain.steps().size()))
    {
        m_lastUse[qsizetype(result)] = qsizetype(result);
        for (qsizetype i = qsizetype(result); i >= 0; --i) {
            if (m_lastUse[i] == kNever)
                continue;
            for (const Picture input : inputsOf(chain.steps()[i]))
                m_lastUse[qsizetype(input)] = std::max(m_lastUse[qsizetype(input)], i);
        }
    }

    bool fitsShaders() const
    {
        for (qsizetype i = 0; i < m_chain.steps().size(); ++i) {
            const PassChain::Step &step = m_chain.steps()[i];
            if (m_lastUse[i] == kNever)
                continue;
            const auto *pass = std::get_if<PassChain::Pass>(&step.work);
            if (step.size.isEmpty() || (pass && !fitsShader(*pass)))
                return false;
        }
        return true;
    }

    /// Links all programs first.
    bool carryOut()
    {
        for (qsizetype i = 0; i < m_chain.steps().size(); ++i) {
            if (m_lastUse[i] != kNever && !hasPrograms(m_chain.steps()[i]))
                return false;
        }
        for (qsizetype i = 0; i < m_chain.steps().size(); ++i) {
            if (m_lastUse[i] == kNever)
                continue;
            m_made[size_t(i)] = std::visit([&](const auto &work) { return make(work, m_chain.steps()[i].size); },
                                           m_chain.steps()[i].work);
            if (m_made[size_t(i)].name() == 0)
                return false;
            for (const Picture input : inputsOf(m_chain.steps()[i])) {
                if (m_lastUse[qsizetype(input)] == i)
                    m_made[size_t(input)] = {};
            }
        }
        return true;
    }

    QImage read(Picture picture) const
    {
        return readFramebuffer(m_passes.functions(), *m_made[size_t(picture)].framebuffer);
    }

private:
    static constexpr qsizetype kNever = -1;

    bool fitsShader(const PassChain::Pass &pass) const
    {
        const FilterShaderDescriptor *descriptor = m_passes.catalog().find(pass.shaderId);
        const QString name = pass.shaderId.startsWith("fx/"_L1) ? pass.shaderId.sliced(3) : pass.shaderId;
        if (!descriptor) {
            qCWarning(lcTexture) << "Unknown filter shader" << name;
            return false;
        }
        if (pass.inputs.size() != descriptor->samplers.size()
            || pass.uniforms.size() != descriptor->uniforms.size() * kUniformVec4Bytes) {
            qCWarning(lcTexture) << "Filter shader invocation mismatch" << name << "samplers expected"
                                 << descriptor->samplers.size() << "got" << pass.inputs.size() << "uniforms expected"
                                 << descriptor->uniforms.size() << "got" << pass.uniforms.size() / kUniformVec4Bytes;
            return false;
        }
        return true;
    }

    bool hasPrograms(const PassChain::Step &step)
    {
        if (const auto *pass = std::get_if<PassChain::Pass>(&step.work))
            return m_passes.filterProgram(pass->shaderId) != nullptr;
        const auto *blur = std::get_if<PassChain::Blur>(&step.work);
        if (!blur)
            return true;
        const QSize from = m_chain.size(blur->input);
        const bool rescales = BlurPlan::make(from, blur->sigma, blur->maximumWorkingSigma).workingSize != from;
        return m_passes.filterProgram(u"gaussianBlur"_s) && (!rescales || m_passes.filterProgram(u"textureCopy"_s));
    }

    MadePicture make(const PassChain::Source &source, const QSize &)
    {
        return {uploadTexture(m_passes.functions(), source.image, source.edge), nullptr};
    }

    MadePicture make(const PassChain::Pass &pass, const QSize &size)
    {
        std::vector<GLuint> names;
        for (const Picture input : pass.inputs)
            names.push_back(m_made[size_t(input)].name());
        OwnedTexture nothing;
        if (names.empty()) { // a pass has at least one texture
            QImage pixel(1, 1, QImage::Format_RGBA8888);
            pixel.fill(Qt::transparent);
            nothing = uploadTexture(m_passes.functions(), pixel, TextureEdge::Clamp);
            names.push_back(nothing.name());
        }
        auto target = createFramebuffer(m_passes.functions(), size);
        if (!m_passes.drawPass(pass.shaderId, names, target.get(), pass.uniforms))
            return {};
        return {{}, std::move(target)};
    }

    MadePicture make(const PassChain::Blur &blur, const QSize &)
    {
        return {{},
                blurTexture(m_passes, m_made[size_t(blur.input)].name(), m_chain.size(blur.input), blur.sigma,
                            blur.maximumWorkingSigma, blur.edge, blur.restoreSize)};
    }

    FilterPassDrawer &m_passes;
    const PassChain &m_chain;
    QList<qsizetype> m_lastUse; ///< the last step that reads each picture; kNever for one that the result needs not
    std::vector<MadePicture> m_made;
};

} // namespace

QImage runPassChain(FilterPassDrawer &passes, OffscreenContext &context, const PassChain &chain, Picture result)
{
    const PassChain::Step &last = chain.steps()[qsizetype(result)];
    if (const auto *source = std::get_if<PassChain::Source>(&last.work))
        return source->image;

    PassChainRun run(passes, chain, result);
    if (!run.fitsShaders())
        return {};
    const CurrentContext current(context);
    if (!current || !run.carryOut())
        return {};
    return run.read(result);
}

} // namespace zm
