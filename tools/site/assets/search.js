// Makes the theme's search work in pages opened from a folder, where a browser neither starts workers nor loads data.
// The index is loaded when the search is opened.
const searchIndex = new Promise((resolve) => {
  window.receiveSearchIndex = resolve;
  const script = document.createElement("script");
  script.src = new URL("../search/search_index.js", document.currentScript.src);
  document.forms.search.addEventListener("focusin", () => document.head.append(script), { once: true });
});

window.__search = {
  index: searchIndex,
  // Finds names by any part, and ranks those first that begin with the query. The theme appends a `*`.
  transform: (query) => {
    const words = query.replace(/^\s*velora\./, "").match(/\w+/g) ?? [];
    return words.map((word) => `*${word}* ${word}`).join(" ");
  },
};

// A replacement for Worker that runs the script in a hidden frame.
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
