// Lets the theme's search work in pages that were opened from a folder, from which a browser neither starts a worker
// nor loads data. The index is loaded when the reader opens the search.
const searchIndex = new Promise((resolve) => {
  window.receiveSearchIndex = resolve;
  const script = document.createElement("script");
  script.src = new URL("../search/search_index.js", document.currentScript.src);
  document.forms.search.addEventListener("focusin", () => document.head.append(script), { once: true });
});

window.__search = {
  index: searchIndex,
  // Finds names by any part of them, first those that begin with what was typed. The theme appends a `*`.
  transform: (query) => {
    const words = query.replace(/^\s*velora\./, "").match(/\w+/g) ?? [];
    return words.map((word) => `*${word}* ${word}`).join(" ");
  },
};

// Runs the worker's script in a hidden frame.
class FrameWorker extends EventTarget {
  constructor(url) {
    super();
    const frame = document.createElement("iframe");
    frame.hidden = true;
    frame.srcdoc = "<body></body>";
    this.ready = new Promise((resolve) => {
      frame.onload = () => {
        const inner = frame.contentWindow;
        inner.postMessage = (data) => this.dispatchEvent(new MessageEvent("message", { data }));
        const script = inner.document.createElement("script");
        script.src = url;
        script.onload = () => resolve(inner);
        inner.document.body.append(script);
      };
    });
    document.body.append(frame);
  }

  postMessage(data) {
    this.ready.then((inner) => inner.dispatchEvent(new MessageEvent("message", { data })));
  }
}
if (location.protocol === "file:") window.Worker = FrameWorker;
