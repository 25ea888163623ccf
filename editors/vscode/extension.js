// Starts the language server for all schemas that are open, and does nothing else.
const { workspace } = require("vscode");
const { LanguageClient } = require("vscode-languageclient/node");

let client;

exports.activate = () => {
  const command = workspace.getConfiguration("ostra-params").get("path");
  const documentSelector = ["file", "untitled"].flatMap((scheme) =>
    ["json", "jsonl"].map((language) => ({ scheme, language })),
  );
  client = new LanguageClient("ostra-params", "OstraParameters", { command, args: ["lsp"] }, { documentSelector });
  return client.start();
};

exports.deactivate = () => client?.stop();
